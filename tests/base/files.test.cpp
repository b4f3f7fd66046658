// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"

#include "base/error.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <unistd.h>

namespace stemwright::test
{

namespace
{

QStringList FilesIn(const QTemporaryDir& folder)
{
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}

} // namespace

TEST(Files, WritesWholeFilesOrNone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("ä b.txt"));
    const QByteArray content = QByteArray(100000, 'x') + QByteArray(1, '\0');
    WriteWholeFile(path, content);
    WriteWholeFile(path, content);
    EXPECT_EQ(ReadWholeFile(path), content);
    EXPECT_THROW(WriteWholeFile(folder.filePath(QStringLiteral("no/such")), content), Error);
    EXPECT_THROW(ReadWholeFile(folder.filePath(QStringLiteral("none"))), Error);
}

/// The device is named by a link, so that a test that fails removes no more than that.
TEST(Files, AFullDiskIsToldAndADeviceStays)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("full"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), path));
    try {
        WriteWholeFile(path, "x");
        ADD_FAILURE() << "a full disk was not noticed";
    } catch (const Error& error) {
        EXPECT_TRUE(error.text().contains(path)) << error.text().toStdString();
    }
    EXPECT_TRUE(QFile::exists(path));
}

TEST(Files, CreatesEveryMissingFolder)
{
    const QTemporaryDir folder;
    EXPECT_TRUE(CreateFolderPath(folder.filePath(QStringLiteral("a/b/c"))));
    EXPECT_TRUE(CreateFolderPath(folder.filePath(QStringLiteral("a/b/c"))));
    WriteWholeFile(folder.filePath(QStringLiteral("file")), {});
    EXPECT_FALSE(CreateFolderPath(folder.filePath(QStringLiteral("file/b"))));
}

TEST(Files, AnUnfinishedFileIsSeenOnlyWhenItIsWhole)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("Family.kvf"));
    WriteWholeFile(target, "old");
    {
        const UnfinishedFile given(target);
        WriteWholeFile(given.path(), "half");
    }
    EXPECT_EQ(ReadWholeFile(target), "old");
    {
        UnfinishedFile kept(target);
        WriteWholeFile(kept.path(), "new");
        EXPECT_EQ(ReadWholeFile(target), "old");
        kept.putInPlace();
    }
    EXPECT_EQ(ReadWholeFile(target), "new");
    EXPECT_EQ(FilesIn(folder), QStringList{QStringLiteral("Family.kvf")});
    UnfinishedFile never(target);
    EXPECT_THROW(never.putInPlace(), Error);
    EXPECT_EQ(ReadWholeFile(target), "new");
}

TEST(Files, OnlyWhatDeadProgramsLeftIsRemoved)
{
    const QTemporaryDir folder;
    const QString running = QStringLiteral("Family.kvf.%1.unfinished").arg(::getppid());
    // Process numbers end long before this one.
    const QStringList dead = {QStringLiteral("Family.kvf.999999999.unfinished"),
                              QStringLiteral("Family.kvf.999999999.unfinished-journal")};
    const QStringList others = {running, QStringLiteral("Family.kvf.my.unfinished"), QStringLiteral("Family.kvf"),
                                QStringLiteral("Other.kvf.999999999.unfinished")};
    for (const QString& name : dead + others) {
        WriteWholeFile(folder.filePath(name), "x");
    }
    const UnfinishedFile unfinished(folder.filePath(QStringLiteral("Family.kvf")));
    QStringList left = others;
    left.sort();
    EXPECT_EQ(FilesIn(folder), left);
}

TEST(Files, LinksLeadToTheSameFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a"));
    const QString link = folder.filePath(QStringLiteral("b"));
    WriteWholeFile(path, "x");
    ASSERT_TRUE(QFile::link(path, link));
    EXPECT_TRUE(IsSameFile(path, link));
    EXPECT_FALSE(IsSameFile(path, folder.path()));
    EXPECT_FALSE(IsSameFile(folder.filePath(QStringLiteral("none")), folder.filePath(QStringLiteral("none"))));
}

} // namespace stemwright::test
