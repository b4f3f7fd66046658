// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/reader.h"

#include <QtCore/QBuffer>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

struct LineCase {
    const char* text;
    char level;
    int xrefId;
    const char* tag;
    const char* value;
};

/// Reads all lines of a text and hands them to `check` one by one.
void ForEachLine(QByteArray text, const std::function<void(const GedcomLine&)>& check)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    LineSource source(buffer, Charset::Utf8, 0);
    GedcomLine line;
    while (ReadGedcomLine(source, line)) {
        check(line);
    }
}

} // namespace

TEST(Reader, SplitsLines)
{
    const std::vector<LineCase> cases = {
        {"0 @I25@ INDI", '0', 25, "INDI", ""},
        {"1 NAME John /Smith/ Jr", '1', -1, "NAME", "John /Smith/ Jr"},
        {"2 PLAC Springfield,,Ohio,", '2', -1, "PLAC", "Springfield,Ohio"},
        {"1 HUSB @I3@", '1', -1, "HUSB", "@I3@"},
        {"12 CONT x", '1', -1, "2", "CONT x"},
        {"0 @N1@ NOTE", '0', -1, "@N1@", "NOTE"},
        {"0 @N1@ NOTE of,,two,", '0', -1, "@N1@", "NOTE of,two"},
        {"0 @I5@ NOTE  of two,,", '0', 5, "NOTE", "of two,"},
        {"0 TRLR", '0', 0, "TRLR", ""},
        {"  1   NAME   spaced out  ", '1', -1, "NAME", "spaced out"},
        {"\t2\tDATE\t1900\t", '2', -1, "DATE", "1900"},
        {"", '\0', -1, "", ""},
        {" \t ", '\0', -1, "", ""},
        {"0", '0', 0, "", ""},
        {"0 @", '0', 0, "@", ""},
        {"0 @ INDI", '0', -1, "@", "INDI"},
        {"1NAME x", '1', -1, "NAME", "x"},
        {"2 PLAC a,,,,,,,,b", '2', -1, "PLAC", "a,b"},
        {"2 PLAC a,,,,,,,,,b", '2', -1, "PLAC", "a,,b"},
        {"2 PLAC ,,", '2', -1, "PLAC", ","},
        {"2 PLAC ,", '2', -1, "PLAC", ""},
    };
    for (const LineCase& expected : cases) {
        int count = 0;
        ForEachLine(QByteArray(expected.text) + '\n', [&](const GedcomLine& line) {
            ++count;
            EXPECT_EQ(line.Level, expected.level) << expected.text;
            EXPECT_EQ(line.XrefId, expected.xrefId) << expected.text;
            EXPECT_EQ(line.Tag, expected.tag) << expected.text;
            EXPECT_EQ(line.Value, expected.value) << expected.text;
        });
        EXPECT_EQ(count, 1) << expected.text;
    }
}

TEST(Reader, EndsLinesAtEveryLineEnd)
{
    for (const char* text : {"0 A\n1 B\n\n1 C\n", "0 A\r1 B\r\r1 C\r", "0 A\r\n1 B\r\n\r\n1 C",
                             "0 A\n\r1 B\n\r\n\r1 C\n\r", "0 A\r\n1 B\n\n1 C\r"}) {
        std::string tags;
        qint64 last = 0;
        ForEachLine(text, [&](const GedcomLine& line) {
            tags += line.Tag.empty() ? "-" : line.Tag;
            last = line.number;
        });
        EXPECT_EQ(tags, "AB-C") << text;
        EXPECT_EQ(last, 4) << text;
    }
}

TEST(Reader, KeepsTheBeginningOfAnEndlessLineAndGoesOn)
{
    const QByteArray text = "1 NOTE " + QByteArray(10'000'000, 'x') + "\r\n1 NAME B\r\n";
    std::vector<std::size_t> lengths;
    ForEachLine(text, [&](const GedcomLine& line) { lengths.push_back(line.Value.size()); });
    EXPECT_EQ(lengths, (std::vector<std::size_t>{LineSource::longestLine - 7, 1}));
}

TEST(Reader, LeavesOutNulBytes)
{
    ForEachLine(QByteArray("1 NA\0ME \0Bob\0\n", 14), [](const GedcomLine& line) {
        EXPECT_EQ(line.Tag, "NAME");
        EXPECT_EQ(line.Value, "Bob");
    });
}

TEST(Reader, TurnsCrossReferencesIntoNumbers)
{
    const std::vector<std::pair<const char*, int>> cases = {
        {"@I12@", 12},
        {"@F7@", 7},
        {"@I1-2@", 102},
        {"@I_7@", 7},
        {"@X1@", -1},
        {"@P5@", -1},
        {"@i5@", -1},
        {"@S3U@", 3},
        {"", -1},
        {"@@", -1},
        {"@I@", -1},
        {"@I0@", 0},
        {"@I000000000000000001@", 1},
        {"@I2147483647@", 2147483647},
        {"@I2147483648@", -1},
        {"@I152733931767@", -1},
        {" @I4@ ", 4},
        {"@I4 5@", -1},
        {"_", 0},
    };
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(XrefToNumber(text), number) << text;
    }
}

TEST(Reader, SplitsNamesAtTheirSlashes)
{
    struct NameCase {
        const char* value;
        const char* given;
        const char* surname;
        const char* suffix;
    };

    for (const NameCase& expected : std::vector<NameCase>{{"John /Smith/ Jr", "John ", "Smith", " Jr"},
                                                          {"Mary", "Mary", "", ""},
                                                          {"/Only", "", "Only", ""},
                                                          {"A /B/ C /D/", "A ", "B", " C /D/"},
                                                          {"", "", "", ""}}) {
        const GedcomName name = SplitGedcomName(expected.value);
        EXPECT_EQ(name.GivenName, expected.given) << expected.value;
        EXPECT_EQ(name.Surname, expected.surname) << expected.value;
        EXPECT_EQ(name.Suffix, expected.suffix) << expected.value;
    }
}

TEST(Reader, KnowsStandardTagsByTheirLabels)
{
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"Burial", "BURI"},     {"education 1900", "EDUC"}, {"Residence", "RESI"}, {"MIGR", "MIGR"},
        {"occupation", "OCCU"}, {"My burial", ""},          {"Bur", ""},           {"", ""}};
    for (const auto& [label, tag] : cases) {
        EXPECT_EQ(StandardTagForLabel(label), tag) << label;
    }
}

TEST(Reader, TellsCustomFactTagsByTextOrder)
{
    for (const char* tag : {"_FA1", "_FA99", "_fa12", "_FA100", "_FA5X", "_FA10"}) {
        EXPECT_TRUE(IsCustomFactTag(tag)) << tag;
    }
    for (const char* tag : {"_FA0", "_FA", "_FAMC", "_FREL", "FA1", "_FA991", "BIRT", ""}) {
        EXPECT_FALSE(IsCustomFactTag(tag)) << tag;
    }
}

} // namespace stemwright::test
