// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/copyfamilyfile.h"

#include "base/error.h"
#include "base/files.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace stemwright::test
{

namespace
{

qint64 RowsOfCopy(const QString& path)
{
    Connection copy(path, OpenMode::ReadWrite);
    return copy.countRows(QStringLiteral("Indi"));
}

QStringList UnfinishedFiles(const TestWorld& world)
{
    return QDir(world.path({})).entryList({QStringLiteral("*unfinished*")}, QDir::Files);
}

void AddIndividual(Connection& connection, int id)
{
    Statement insert = connection.prepare(QStringLiteral("INSERT INTO Indi (Id) VALUES (?1)"));
    insert.bind(1, id).run();
}

} // namespace

TEST(CopyFamilyFile, TheBackupStandsBesideTheFile)
{
    const std::pair<const char*, const char*> cases[] = {
        {"/a/Smith.kvf", "/a/Smith.ffb"}, {"/a/Smith.old.kvf", "/a/Smith.old.ffb"}, {"/a.b/Smith", "/a.b/Smith.ffb"}};
    for (const auto& [file, backup] : cases) {
        EXPECT_EQ(BackupPath(QString::fromLatin1(file)), QString::fromLatin1(backup));
    }
}

TEST(CopyFamilyFile, TheBackupHoldsWhatTheOpenFileHolds)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    const QString backup = BackupFamilyFile(connection);
    EXPECT_EQ(backup, world.path(QStringLiteral("Family.ffb")));
    EXPECT_EQ(RowsOfCopy(backup), 0);
    AddIndividual(connection, 1);
    EXPECT_EQ(BackupFamilyFile(connection), backup);
    EXPECT_EQ(RowsOfCopy(backup), 1);
    EXPECT_EQ(UnfinishedFiles(world), QStringList());
}

/// The child may not write more than a file size, as on a full disk.
TEST(CopyFamilyFile, AFullDiskLeavesTheOlderBackup)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    AddIndividual(connection, 1);
    const QString backup = BackupFamilyFile(connection);
    AddIndividual(connection, 2);
    const pid_t child = ::fork();
    if (child == 0) {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{50000, 50000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        int result = 1;
        try {
            BackupFamilyFile(connection);
        } catch (const std::exception&) {
            result = 0;
        }
        ::_exit(result);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the copy did not fail";
    EXPECT_EQ(RowsOfCopy(backup), 1);
    EXPECT_EQ(UnfinishedFiles(world), QStringList());
}

TEST(CopyFamilyFile, ADamagedFileDoesNotReplaceAGoodCopy)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    const QString backup = BackupFamilyFile(connection);
    connection.execute(QStringLiteral("PRAGMA ignore_check_constraints = 1; INSERT INTO UniqueIds VALUES (1, 7)"));
    EXPECT_THROW(BackupFamilyFile(connection), Error);
    Connection copy(backup, OpenMode::ReadWrite);
    EXPECT_EQ(copy.countRows(QStringLiteral("UniqueIds")), 0);
}

TEST(CopyFamilyFile, TheOpenFileIsNeverItsOwnTarget)
{
    TestWorld world;
    ASSERT_TRUE(CreateFamilyFile(world.file, world.path(QStringLiteral("Family.ffb")), world.environment));
    EXPECT_THROW(BackupFamilyFile(world.file.connection()), Error);
    ASSERT_TRUE(QFile::link(world.file.path(), world.path(QStringLiteral("link.kvf"))));
    EXPECT_THROW(CopyFamilyFile(world.file.connection(), world.path(QStringLiteral("link.kvf"))), Error);
}

} // namespace stemwright::test
