// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"

#include "base/error.h"

#include <QtCore/QDir>
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
    const QString path = folder.filePath("ä b.txt");
    const QByteArray content = QByteArray(100000, 'x') + QByteArray(1, '\0');
    WriteWholeFile(path, content);
    WriteWholeFile(path, content);
    EXPECT_EQ(ReadWholeFile(path), content);
    EXPECT_THROW(WriteWholeFile(folder.filePath("no/such"), content), Error);
    EXPECT_THROW(ReadWholeFile(folder.filePath("none")), Error);
}

TEST(Files, AnUnfinishedFileIsSeenOnlyWhenItIsWhole)
{
    const QTemporaryDir folder;
    const QString target = folder.filePath("Family.kvf");
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
    EXPECT_EQ(FilesIn(folder), QStringList{"Family.kvf"});
    UnfinishedFile never(target);
    EXPECT_THROW(never.putInPlace(), Error);
    EXPECT_EQ(ReadWholeFile(target), "new");
}

TEST(Files, OnlyWhatDeadProgramsLeftIsRemoved)
{
    const QTemporaryDir folder;
    const QString running = QString("Family.kvf.%1.unfinished").arg(::getppid());
    // Process numbers end long before this one.
    const QStringList dead = {"Family.kvf.999999999.unfinished", "Family.kvf.999999999.unfinished-journal"};
    const QStringList others = {running, "Family.kvf.my.unfinished", "Family.kvf", "Other.kvf.999999999.unfinished"};
    for (const QString& name : dead + others) {
        WriteWholeFile(folder.filePath(name), "x");
    }
    const UnfinishedFile unfinished(folder.filePath("Family.kvf"));
    QStringList left = others;
    left.sort();
    EXPECT_EQ(FilesIn(folder), left);
}

} // namespace stemwright::test
