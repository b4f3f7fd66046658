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
        const PictureTable table(world.connection(), "Initial");
        return ExportTableAsText(table, {path, delimiter, encoding}, world.connection().path(), world.talk);
    }

    QueryWorld world;
    const QString out = world.path("out.txt");
};

} // namespace

TEST_F(TableExportTest, WritesALineForEachRow)
{
    world.change("FilenameShow = 0, ModifDateShow = -1, NamesLeftShow = -1");
    PictureTable table(world.connection(), "Initial");
    table.sortBy(3);
    ASSERT_TRUE(ExportTableAsText(table, {out}, world.connection().path(), world.talk));
    EXPECT_EQ(ReadWholeFile(out), ReadWholeFile(TestData("queries/export.txt")));

    const std::tuple<std::size_t, const char*, const char*> cases[] = {
        {1, ",", "PicId\r\n1\r\n2\r\n3\r\n4\r\n5\r\n"},
        {2, ", ", "PicId, PictureDate\r\n1, 1950\r\n2, \r\n3, Abt. 1949\r\n4, \r\n5, 1900\r\n"}};
    for (const auto& [columns, delimiter, expected] : cases) {
        EncodedText text(TextEncoding::Utf8);
        EXPECT_EQ(ExportTable(table, columns, delimiter, text, world.talk), ExportOutcome::Complete);
        EXPECT_EQ(text.bytes(), expected);
    }
    EncodedText text(TextEncoding::Utf8);
    world.talk.expect("Internal error: Number of fields to export exceeds total number of fields");
    EXPECT_EQ(ExportTable(table, 99, ",", text, world.talk), ExportOutcome::Refused);
    EXPECT_EQ(text.bytes(), QByteArray());

    world.change("IdFilter = -1, IdFrom = 99, PicDateShow = 0, PlaceShow = 0, TitleShow = 0, "
                 "ModifDateShow = 0, NamesLeftShow = 0");
    world.talk.expect("File exists", Button::Ok);
    EXPECT_TRUE(exportTo(out, ","));
    EXPECT_EQ(ReadWholeFile(out), "PicId\r\n");
}

TEST_F(TableExportTest, AsksAboutRowsThatTheEncodingDoesNotKnow)
{
    world.change("PicDateShow = 0, TitleShow = 0, FilenameShow = 0");
    world.execute("UPDATE AlbumTOC SET Place = '“Łódź”' WHERE PicId = 2;"
                  "UPDATE AlbumTOC SET Place = '“Zürich” €' WHERE PicId = 1");
    const QString question = "Cannot write row";
    world.talk.expect(question, Button::Ok).expect(question, Button::Ok);
    EXPECT_TRUE(exportTo(out, ";", TextEncoding::Windows1252));
    EXPECT_EQ(ReadWholeFile(out), "PicId;Place\r\n1;\x93Z\xFCrich\x94 \x80\r\n3;\r\n4;\r\n");
    EXPECT_TRUE(world.talk.shown()[0].text.contains("string \n2;“Łódź”\nbecause it contains"));

    world.talk.expect("File exists", Button::Ok).expect(question, Button::Cancel);
    EXPECT_FALSE(exportTo(out, ";", TextEncoding::Windows1252));
    EXPECT_EQ(ReadWholeFile(out), "PicId;Place\r\n1;\x93Z\xFCrich\x94 \x80\r\n") << "the lines so far";

    world.talk.expect("File exists", Button::Ok);
    EXPECT_TRUE(exportTo(out, "ł", TextEncoding::Utf8));
    EXPECT_TRUE(ReadWholeFile(out).startsWith("PicIdłPlace\r\n1ł“Zürich” €\r\n2ł“Łódź”\r\n"));
    world.talk.expect("File exists", Button::Ok).expect("Export Table");
    EXPECT_FALSE(exportTo(out, "ł", TextEncoding::Windows1252));
    EXPECT_TRUE(ReadWholeFile(out).startsWith("PicIdłPlace")) << "the old file stays";
}

TEST_F(TableExportTest, AsksBeforeItMakesFoldersAndReplacesFiles)
{
    const QString deep = world.path("a/b/out.txt");
    world.talk.expect("No such folder", Button::Cancel);
    EXPECT_FALSE(exportTo(deep, ","));
    EXPECT_FALSE(QFileInfo::exists(world.path("a")));
    world.talk.expect("No such folder", Button::Ok);
    EXPECT_TRUE(exportTo(deep, ","));
    EXPECT_TRUE(QFileInfo(deep).isFile());

    world.write("out.txt", "old");
    world.talk.expect("File exists", Button::Cancel);
    EXPECT_FALSE(exportTo(out, ","));
    world.talk.expect("No such folder", Button::Ok).expect("Cannot create folder");
    EXPECT_FALSE(exportTo(out + "/below.txt", ","));
    const QString impossible[] = {{}, world.path({}), world.path("a"), "/dev/full", world.connection().path()};
    for (const QString& path : impossible) {
        world.talk.expect("Export Table");
        EXPECT_FALSE(exportTo(path, ",")) << path.toStdString();
    }
    EXPECT_EQ(ReadWholeFile(out), "old");
    EXPECT_TRUE(QDir(world.path({})).entryList({"*unfinished*"}, QDir::Files).isEmpty());
}

TEST_F(TableExportTest, ProposesAFileAndDelimiters)
{
    EXPECT_EQ(ProposedExportPath("/photos", "Beach's"), "/photos/Beach's.txt");
    EXPECT_EQ(OfferedDelimiters().join(u' '), "<tab> , : ; * # |");
}

} // namespace stemwright::test
