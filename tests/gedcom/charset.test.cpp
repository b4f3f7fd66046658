// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/charset.h"

#include "base/error.h"
#include "base/files.h"
#include "gedcom/ansel.h"
#include "gedcom/encoding.h"
#include "gedcom/treedump.h"
#include "support/testworld.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

FileEncoding Detect(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return DetectEncoding(buffer);
}

QByteArray Headed(const QByteArray& declared, const QByteArray& name)
{
    return "0 HEAD\n1 CHAR " + declared + "\n0 @I1@ INDI\n1 NAME " + name + "\n0 TRLR\n";
}

} // namespace

TEST(Ansel, MovesMarksBehindTheirLettersAndComposes)
{
    const std::vector<std::pair<const char*, const char16_t*>> cases = {
        {"plain", u"plain"},
        {"\xE2\x65\xE8u", u"\u00E9\u00FC"},
        {"\xA1\xB1\xA2\xB2\xC7\xCF", u"\u0141\u0142\u00D8\u00F8\u00DF\u00DF"},
        {"\xE3\xE2\x61", u"\u1EA5"},
        {"\xF2\xE3o", u"\u1ED9"},
        {"\xEBi\xECo", u"i\uFE20o\uFE21"},
        {"\xBE\xBF\xCD\xCE\xFCo", u"\u25A1\u25A0eoo\u0338"},
        {"a\xE2\r\nb", u"\u00E1\r\nb"},
        {"x\xE2", u"x\u0301"},
        {"\x80\xDF", u"\u20AC\u00DF"},
    };
    for (const auto& [bytes, expected] : cases) {
        EXPECT_EQ(DecodeAnsel(bytes), QString::fromUtf16(expected)) << bytes;
    }
}

/// The files names-*.ged hold one tree in one encoding and with one line end each.
TEST(Charset, ReadsOneTreeAlikeFromEveryEncoding)
{
    const QDir folder(TestData("gedcom"));
    const QStringList files = folder.entryList({"names-*.ged"});
    ASSERT_EQ(files.size(), 15);
    const QString expected = TestDataText("gedcom/names.txt");
    for (const QString& file : files) {
        ImportedTree tree(ReadWholeFile(folder.filePath(file)));
        EXPECT_EQ(tree.dump(), expected) << file << " as " << tree.report.charset;
    }
}

TEST(Charset, BelievesTheHeaderWhereTheBytesBearItOut)
{
    const std::vector<std::tuple<const char*, const char*, Charset>> cases = {
        {"IBMPC", "Jos\x82", Charset::Dos437},
        {"IBMPC", "S\x9Bren", Charset::Dos850},
        {"IBM WINDOWS", "Jos\xE9", Charset::Windows1252},
        {"IBMPC", "Jos\xC3\xA9", Charset::Utf8},
        {"OEM", "\xB5nna", Charset::Dos850},
        {"ANSEL", "Jos\xE2\x65", Charset::Ansel},
        {"ansi", "Jos\xE9", Charset::Windows1252},
        {"ASCII", "Jos\xE9", Charset::Windows1252},
        {"ASCII", "Jose", Charset::Utf8},
        {"UTF-8", "Jos\xE9", Charset::Utf8},
        {"UNICODE", "Jos\xE9", Charset::Windows1252},
        {"MACINTOSH", "Jos\x8E", Charset::MacRoman}};
    for (const auto& [declared, name, charset] : cases) {
        EXPECT_EQ(Detect(Headed(declared, name)).charset, charset) << declared << ' ' << name;
    }
}

TEST(Charset, KnowsTheCharacterSetsThatIcuKnows)
{
    const std::tuple<const char*, const char*, const char16_t*, bool> cases[] = {
        {"WINDOWS-1250", "Dvo\xF8\xE1k", u"Dvořák", false},
        {"ANSI 1250", "Dvo\xF8\xE1k", u"Dvořák", false},
        {"CP1251", "\xCF\xE5\xF2\xF0", u"Петр", false},
        {"1251", "\xCF\xE5\xF2\xF0", u"Петр", false},
        {"CP852", "Dvo\xFD\xA0k", u"Dvořák", false},
        {"ISO-8859-2",
         "\xA3\xF3"
         "d\xBC",
         u"Łódź", false},
        {"KOI8-R", "\xF0\xC5\xD4\xD2", u"Петр", false},
        {"WINDOWS-1257", "\xD0\xA1\xA5", u"Š¡¥", false},
        {"Shift_JIS", "\x93\x63\x92\x86\x83\x5C", u"田中ソ", false},
        {"Shift_JIS", "\x93\x63 \xFF", u"“c ÿ", false},
        {"ISO-8859-1", "Jos\xE9 \x96", u"José –", false},
        {"US-ASCII", "Jos\xE9", u"José", false},
        {"UTF-7", "Jos\xE9", u"José", true},
        {"EBCDIC-CP-US", "Jos\xE9", u"José", true},
        {"UNICODE", "Jos\xE9", u"José", true},
        {"../KOI9", "Jos\xE9", u"José", true}};
    for (const auto& [declared, name, text, isGuessed] : cases) {
        ImportedTree tree(Headed(declared, name));
        EXPECT_EQ(Rows(tree.connection, "SELECT GivenName FROM Indi"), QStringList(QString::fromUtf16(text)))
            << declared;
        EXPECT_EQ(tree.report.isCharsetGuessed, isGuessed) << declared;
        EXPECT_EQ(ReportText(tree.report).contains("is not known"), isGuessed) << declared;
    }
    EXPECT_FALSE(Detect(Headed("KOI9", "Jose")).isGuessed);
}

TEST(Charset, FindsUtf8AcrossTheBlocksOfALargeFile)
{
    QByteArray file = Headed("ANSEL", "x");
    // An odd number of bytes in front makes a two-byte character stand across every block's end.
    file += (file.size() % 2 == 0 ? "1" : "1 ") + QByteArray("NOTE ");
    for (int count = 0; count < 300'000; ++count) {
        file += "\xC3\xA9";
    }
    EXPECT_EQ(Detect(file).charset, Charset::Utf8);
    EXPECT_EQ(Detect(file + '\xE9').charset, Charset::Ansel);
}

TEST(Charset, LosesNoTextAtBadBytesAndSplitLines)
{
    const QByteArray name = "Ren\xC3\xA9\n1 TITL Ren\xE9\n1 BIRT\n2 PLAC Ren\xC3\n3 CONC \xA9ville";
    const QString dump = ImportedTree(Headed("UTF-8", name)).dump();
    for (const char* kept : {"GivenName=[René]", "Title=[René]", "BIRT_Place=[Renéville]"}) {
        EXPECT_TRUE(dump.contains(kept)) << dump;
    }
}

TEST(Charset, RefusesWhatIsNoText)
{
    for (const QByteArray& bytes : {QByteArray(), QByteArray("PK\x03\x04 0 HEAD\n"), QByteArray(1000, '\0'),
                                    QByteArray("\x7F\x45LF\0\0\0\0\0\1\2\3\n0 HEAD\n", 21)}) {
        EXPECT_THROW(Detect(bytes), Error) << bytes.left(8).toStdString();
    }
}

} // namespace stemwright::test
