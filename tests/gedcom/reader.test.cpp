// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/reader.h"

#include "support/testworld.h"

#include <QtCore/QBuffer>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

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
    for (const QStringList& row : TestTable("gedcom/lines.txt")) {
        int count = 0;
        ForEachLine(row[0].toUtf8() + '\n', [&](const GedcomLine& line) {
            ++count;
            const QString level = line.Level == '\0' ? QString("") : QString(line.Level);
            EXPECT_EQ(level, row[1]) << row[0];
            EXPECT_EQ(line.XrefId, row[2].toInt()) << row[0];
            EXPECT_EQ(line.Tag, row[3].toStdString()) << row[0];
            EXPECT_EQ(line.Value, row[4].toStdString()) << row[0];
        });
        EXPECT_EQ(count, 1) << row[0];
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

TEST(Reader, CutsAnEndlessLineBetweenCharacters)
{
    for (const QByteArray& character :
         {QByteArray("\xC3\xA9"), QByteArray("\xE3\x82\xBD"), QByteArray("\xF0\x9F\x98\x80")}) {
        for (const char* start : {"1 NOTE ", "1 NOTE a", "1 NOTE aa", "1 NOTE aaa"}) {
            for (const qsizetype count : {70'000, 300'000}) {
                ForEachLine(start + character.repeated(count), [](const GedcomLine& line) {
                    EXPECT_TRUE(QUtf8StringView(line.Value).isValidUtf8());
                    EXPECT_GE(line.Value.size(), LineSource::longestLine - 10);
                });
            }
        }
    }
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
    const std::pair<int, std::vector<const char*>> cases[] = {
        {12, {"@I12@"}},
        {102, {"@I1-2@"}},
        {7, {"@F7@", "@I_7@"}},
        {3, {"@S3U@"}},
        {4, {" @I4@ "}},
        {0, {"@I0@", "_"}},
        {1, {"@I000000000000000001@"}},
        {2147483647, {"@I2147483647@"}},
        {-1, {"@X1@", "@P5@", "@i5@", "", "@@", "@I@", "@I2147483648@", "@I152733931767@", "@I4 5@"}}};
    for (const auto& [number, texts] : cases) {
        for (const char* text : texts) {
            EXPECT_EQ(XrefToNumber(text), number) << text;
        }
    }
}

TEST(Reader, SplitsNamesAtTheirSlashes)
{
    const std::array<const char*, 4> cases[] = {{"John /Smith/ Jr", "John ", "Smith", " Jr"},
                                                {"Mary", "Mary", "", ""},
                                                {"/Only", "", "Only", ""},
                                                {"A /B/ C /D/", "A ", "B", " C /D/"}};
    for (const auto& [value, given, surname, suffix] : cases) {
        const GedcomName name = SplitGedcomName(value);
        EXPECT_EQ(std::tie(name.GivenName, name.Surname, name.Suffix), std::tuple(given, surname, suffix)) << value;
    }
}

TEST(Reader, KnowsStandardTagsByTheirLabels)
{
    const std::pair<const char*, const char*> cases[] = {
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
