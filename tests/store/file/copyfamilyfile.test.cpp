// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/copyfamilyfile.h"

#include "base/error.h"
#include "base/files.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

qint64 RowsOfCopy(const QString& path, const QString& table)
{
    Connection copy(path, OpenMode::ReadWrite);
    return copy.countRows(table);
}

} // namespace

TEST(CopyFamilyFile, TheBackupStandsBesideTheFile)
{
    const std::pair<const char*, const char*> cases[] = {
        {"/a/Smith.kvf", "/a/Smith.ffb"}, {"/a/Smith.old.kvf", "/a/Smith.old.ffb"}, {"/a.b/Smith", "/a.b/Smith.ffb"}};
    for (const auto& [file, backup] : cases) {
        EXPECT_EQ(BackupPath(file), backup);
    }
}

TEST(CopyFamilyFile, TheBackupHoldsWhatTheOpenFileHolds)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    const QString backup = BackupFamilyFile(connection, world.talk);
    EXPECT_EQ(backup, world.path("Family.ffb"));
    EXPECT_EQ(RowsOfCopy(backup, "Indi"), 0);
    connection.execute("INSERT INTO Indi (Id) VALUES (1)");
    EXPECT_EQ(BackupFamilyFile(connection, world.talk), backup);
    EXPECT_EQ(RowsOfCopy(backup, "Indi"), 1);
    EXPECT_EQ(QDir(world.path({})).entryList({"*unfinished*"}, QDir::Files), QStringList());
}

TEST(CopyFamilyFile, ALargerBackupOfAnyReleaseIsKept)
{
    TestWorld world;
    world.newFamilyFile();
    const QByteArray jet = ReadWholeFile(TestData("jet/family-2.2/cats-2.2.kvf"));
    for (const char* kept : {"Family.kept-1.ffb", "Family.kept-2.ffb"}) {
        world.write("Family.ffb", jet);
        world.talk.expect("Creating Backup Family File");
        EXPECT_EQ(RowsOfCopy(BackupFamilyFile(world.connection(), world.talk), "Indi"), 0);
        EXPECT_EQ(ReadWholeFile(world.path(kept)), jet);
    }
    world.write("Family.ffb", "not a backup");
    EXPECT_EQ(RowsOfCopy(BackupFamilyFile(world.connection(), world.talk), "Indi"), 0);
}

TEST(CopyFamilyFile, ADamagedFileDoesNotReplaceAGoodCopy)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    const QString backup = BackupFamilyFile(connection, world.talk);
    connection.execute("PRAGMA ignore_check_constraints = 1; INSERT INTO UniqueIds VALUES (1, 7)");
    EXPECT_THROW(BackupFamilyFile(connection, world.talk), Error);
    EXPECT_EQ(RowsOfCopy(backup, "UniqueIds"), 0);
}

TEST(CopyFamilyFile, CopiesGoWhereLinksLeadAndAreReadByNobodyElse)
{
    TestWorld world;
    ASSERT_TRUE(CreateFolderPath(world.path("real")));
    ASSERT_TRUE(QFile::link("real/Cats.kvf", world.path("link.kvf")));
    ASSERT_TRUE(CreateFamilyFile(world.file, world.path("link.kvf"), world.environment));
    const QString real = world.path("real/Cats.kvf");
    const QFile::Permissions mine = QFile::ReadOwner | QFile::WriteOwner;
    ASSERT_TRUE(QFile::setPermissions(real, mine));
    EXPECT_EQ(BackupFamilyFile(world.connection(), world.talk), world.path("real/Cats.ffb"));
    ASSERT_TRUE(QFile::link("real/Copy.kvf", world.path("copy.kvf")));
    CopyFamilyFile(world.connection(), world.path("copy.kvf"));
    for (const char* name : {"real/Cats.kvf", "real/Cats.ffb", "real/Copy.kvf"}) {
        const QFile::Permissions owner = QFile::ReadUser | QFile::WriteUser | mine;
        EXPECT_EQ(QFile::permissions(world.path(name)) | owner, owner) << name;
    }
    EXPECT_EQ(QDir(world.path({})).entryList(QDir::Files | QDir::NoSymLinks), QStringList());
    // Jet files are copied in another way.
    const QString old = world.write("old.kvf", ReadWholeFile(TestData("jet/family-2.2.9930/cats-2.2.9930.kvf")));
    ASSERT_TRUE(QFile::setPermissions(old, mine));
    world.talk.expect("Creating Backup Family File");
    ASSERT_TRUE(OpenFamilyFile(world.file, old, world.environment));
    for (const char* name : {"old.kvf", "old.ffb"}) {
        EXPECT_FALSE(QFile::permissions(world.path(name)) & (QFile::ReadGroup | QFile::ReadOther)) << name;
    }
}

TEST(CopyFamilyFile, TheOpenFileIsNeverItsOwnTarget)
{
    TestWorld world;
    world.newFamilyFile();
    ASSERT_TRUE(QFile::link(world.file.path(), world.path("link.kvf")));
    EXPECT_THROW(CopyFamilyFile(world.file.connection(), world.path("link.kvf")), Error);
}

} // namespace stemwright::test
