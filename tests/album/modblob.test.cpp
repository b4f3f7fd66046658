// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/modblob.h"

#include "base/error.h"
#include "base/files.h"
#include "support/testworld.h"

#include <QtCore/QFile>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const BlobField picture{"AlbumTOC", "Picture", 1};

/// Bytes that show when a chunk stands in a wrong place.
QByteArray Bytes(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype index = 0; index < size; ++index) {
        bytes[index] = static_cast<char>((index * 131 + index / 16384) % 251);
    }
    return bytes;
}

Connection& WithOnePicture(TestWorld& world)
{
    Connection& connection = world.newFamilyFile().connection();
    connection.execute("INSERT INTO AlbumTOC (Title) VALUES ('one')");
    return connection;
}

} // namespace

TEST(ModBlob, FilesGoInAndComeOutByteForByte)
{
    TestWorld world;
    Connection& connection = WithOnePicture(world);
    const QString out = world.path("out");
    SaveFieldToFile(connection, picture, out);
    EXPECT_EQ(ReadWholeFile(out), QByteArray()) << "of Null";
    for (const qsizetype size :
         {qsizetype(0), qsizetype(1), qsizetype(16383), qsizetype(16384), qsizetype(16385), qsizetype(3 * 16384),
          qsizetype(3 * 16384 + 1), qsizetype(1048576), qsizetype(1048577), qsizetype(5'000'000)}) {
        LoadFileIntoField(connection, world.write("in", Bytes(size)), picture);
        world.write("out", QByteArray(6'000'000, 'x'));
        SaveFieldToFile(connection, picture, out);
        EXPECT_EQ(ReadWholeFile(out), Bytes(size)) << size;
    }
}

TEST(ModBlob, MemosAreCopiedAsTextAndOtherColumnsAreLeftAlone)
{
    TestWorld world;
    Connection& connection = WithOnePicture(world);
    const QString in = world.write("in", QByteArray("Grüße\n007"));
    const QString out = world.path("out");
    const BlobField memo{"AlbumTOC", "PicDescr", 1};
    LoadFileIntoField(connection, in, memo);
    SaveFieldToFile(connection, memo, out);
    EXPECT_EQ(ReadWholeFile(out), "Grüße\n007");
    const BlobField title{"AlbumTOC", "Title", 1};
    LoadFileIntoField(connection, in, title);
    EXPECT_EQ(world.column("SELECT PicDescr, typeof(PicDescr), Title FROM AlbumTOC"),
              QStringList{"Grüße\n007|text|one"});
    SaveFieldToFile(connection, title, out);
    EXPECT_EQ(ReadWholeFile(out), QByteArray());
}

TEST(ModBlob, FailuresAreTold)
{
    TestWorld world;
    Connection& connection = WithOnePicture(world);
    const QString in = world.write("in", Bytes(100000));
    EXPECT_THROW(LoadFileIntoField(connection, world.path("missing"), picture), Error);
    EXPECT_THROW(LoadFileIntoField(connection, in, {picture.table, picture.column, 99}), Error);
    LoadFileIntoField(connection, in, picture);
    const QString full = world.path("full");
    ASSERT_TRUE(QFile::link("/dev/full", full));
    EXPECT_THROW(SaveFieldToFile(connection, picture, full), Error);
    EXPECT_TRUE(QFile::exists(full));
    EXPECT_THROW(SaveFieldToFile(connection, picture, world.path("no/out")), Error);
    EXPECT_THROW(SaveFieldToFile(connection, {picture.table, picture.column, 99}, world.path("out")), Error);
}

} // namespace stemwright::test
