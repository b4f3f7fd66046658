// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "export/tableexport.h"

#include "base/files.h"
#include "queries/queryworld.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class TableExportTest : public testing::Test
{
protected:
    bool exportTo(const QString& path, const QString& delimiter, TextEncoding encoding = TextEncoding::System)
    {
        const PictureTable table(world.connection, QStringLiteral("Initial"));
        return ExportTableAsText(table, {path, delimiter, encoding}, world.connection.path(), world.talk);
    }

    QueryWorld world;
    const QString out = world.path(QStringLiteral("out.txt"));
};

} // namespace

TEST_F(TableExportTest, WritesALineForEachRow)
{
    world.change(QStringLiteral("FilenameShow = 0, ModifDateShow = -1, NamesLeftShow = -1"));
    PictureTable table(world.connection, QStringLiteral("Initial"));
    table.sortBy(3);
    ASSERT_TRUE(ExportTableAsText(table, {out}, world.connection.path(), world.talk));
    EXPECT_EQ(ReadWholeFile(out), ReadWholeFile(TestData(QStringLiteral("queries/export.txt"))));

    const std::tuple<std::size_t, const char*, const char*> cases[] = {
        {1, ",", "PicId\r\n1\r\n2\r\n3\r\n4\r\n5\r\n"},
        {2, ", ", "PicId, PictureDate\r\n1, 1950\r\n2, \r\n3, Abt. 1949\r\n4, \r\n5, 1900\r\n"}};
    for (const auto& [columns, delimiter, expected] : cases) {
        EncodedText text(TextEncoding::Utf8);
        EXPECT_EQ(ExportTable(table, columns, QString::fromLatin1(delimiter), text, world.talk),
                  ExportOutcome::Complete);
        EXPECT_EQ(text.bytes(), expected);
    }
    EncodedText text(TextEncoding::Utf8);
    world.talk.expect(QStringLiteral("Internal error: Number of fields to export exceeds total number of fields"));
    EXPECT_EQ(ExportTable(table, 99, QStringLiteral(","), text, world.talk), ExportOutcome::Refused);
    EXPECT_EQ(text.bytes(), QByteArray());

    world.change(QStringLiteral("IdFilter = -1, IdFrom = 99, PicDateShow = 0, PlaceShow = 0, TitleShow = 0, "
                                "ModifDateShow = 0, NamesLeftShow = 0"));
    world.talk.expect(QStringLiteral("File exists"), Button::Ok);
    EXPECT_TRUE(exportTo(out, QStringLiteral(",")));
    EXPECT_EQ(ReadWholeFile(out), "PicId\r\n");
}

TEST_F(TableExportTest, AsksAboutRowsThatTheEncodingDoesNotKnow)
{
    world.change(QStringLiteral("PicDateShow = 0, TitleShow = 0, FilenameShow = 0"));
    world.connection.execute(QStringLiteral("UPDATE AlbumTOC SET Place = '“Łódź”' WHERE PicId = 2;"
                                            "UPDATE AlbumTOC SET Place = '“Zürich” €' WHERE PicId = 1"));
    const QString question = QStringLiteral("Cannot write row");
    world.talk.expect(question, Button::Ok).expect(question, Button::Ok);
    EXPECT_TRUE(exportTo(out, QStringLiteral(";"), TextEncoding::Windows1252));
    EXPECT_EQ(ReadWholeFile(out), "PicId;Place\r\n1;\x93Z\xFCrich\x94 \x80\r\n3;\r\n4;\r\n");
    EXPECT_TRUE(world.talk.shown()[0].text.contains(QStringLiteral("string \n2;“Łódź”\nbecause it contains")));

    world.talk.expect(QStringLiteral("File exists"), Button::Ok).expect(question, Button::Cancel);
    EXPECT_FALSE(exportTo(out, QStringLiteral(";"), TextEncoding::Windows1252));
    EXPECT_EQ(ReadWholeFile(out), "PicId;Place\r\n1;\x93Z\xFCrich\x94 \x80\r\n") << "the lines so far";

    world.talk.expect(QStringLiteral("File exists"), Button::Ok);
    EXPECT_TRUE(exportTo(out, QStringLiteral("ł"), TextEncoding::Utf8));
    EXPECT_TRUE(ReadWholeFile(out).startsWith("PicIdłPlace\r\n1ł“Zürich” €\r\n2ł“Łódź”\r\n"));
    world.talk.expect(QStringLiteral("File exists"), Button::Ok).expect(QStringLiteral("Export Table"));
    EXPECT_FALSE(exportTo(out, QStringLiteral("ł"), TextEncoding::Windows1252));
    EXPECT_TRUE(ReadWholeFile(out).startsWith("PicIdłPlace")) << "the old file stays";
}

TEST_F(TableExportTest, AsksBeforeItMakesFoldersAndReplacesFiles)
{
    const QString deep = world.path(QStringLiteral("a/b/out.txt"));
    world.talk.expect(QStringLiteral("No such folder"), Button::Cancel);
    EXPECT_FALSE(exportTo(deep, QStringLiteral(",")));
    EXPECT_FALSE(QFileInfo::exists(world.path(QStringLiteral("a"))));
    world.talk.expect(QStringLiteral("No such folder"), Button::Ok);
    EXPECT_TRUE(exportTo(deep, QStringLiteral(",")));
    EXPECT_TRUE(QFileInfo(deep).isFile());

    world.write(QStringLiteral("out.txt"), "old");
    world.talk.expect(QStringLiteral("File exists"), Button::Cancel);
    EXPECT_FALSE(exportTo(out, QStringLiteral(",")));
    world.talk.expect(QStringLiteral("No such folder"), Button::Ok).expect(QStringLiteral("Cannot create folder"));
    EXPECT_FALSE(exportTo(out + QStringLiteral("/below.txt"), QStringLiteral(",")));
    const QString impossible[] = {
        {}, world.path({}), world.path(QStringLiteral("a")), QStringLiteral("/dev/full"), world.connection.path()};
    for (const QString& path : impossible) {
        world.talk.expect(QStringLiteral("Export Table"));
        EXPECT_FALSE(exportTo(path, QStringLiteral(","))) << path.toStdString();
    }
    EXPECT_EQ(ReadWholeFile(out), "old");
    EXPECT_TRUE(QDir(world.path({})).entryList({QStringLiteral("*unfinished*")}, QDir::Files).isEmpty());
}

TEST_F(TableExportTest, ProposesAFileAndDelimiters)
{
    EXPECT_EQ(ProposedExportPath(QStringLiteral("/photos"), QStringLiteral("Beach's")),
              QStringLiteral("/photos/Beach's.txt"));
    EXPECT_EQ(OfferedDelimiters().join(u' '), QStringLiteral("<tab> , : ; * # |"));
}

} // namespace stemwright::test
