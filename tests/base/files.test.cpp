// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"

#include "base/error.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

#include <sys/stat.h>
#include <unistd.h>

namespace stemwright::test
{

namespace
{

QStringList FilesIn(const QTemporaryDir& folder)
{
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}

mode_t PermissionsOf(const QString& path)
{
    struct stat file {
    };

    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &file), 0);
    return file.st_mode & 0777;
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
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath("pipe")).constData(), 0600), 0);
    for (const char* unreadable : {"none", "pipe", "."}) {
        EXPECT_THROW(ReadWholeFile(folder.filePath(unreadable)), Error) << unreadable;
    }
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
    DiscardFile(never.path());
    EXPECT_THROW(never.putInPlace(), Error);
    EXPECT_EQ(ReadWholeFile(target), "new");
}

TEST(Files, AnUnfinishedFileIsReadByNobodyWhoMayNotReadWhatItReplacesOrCopies)
{
    const mode_t before = ::umask(022);
    // The file that stands there, the one that is copied, the new one; 0 for none.
    const std::array<mode_t, 3> cases[] = {{0, 0, 0644},    {0600, 0, 0600},    {0, 0600, 0600},
                                           {0664, 0, 0664}, {0644, 0600, 0600}, {0600, 0644, 0600}};
    for (const auto& [there, copied, expected] : cases) {
        const QTemporaryDir folder;
        const QString target = folder.filePath("target");
        const QString source = folder.filePath("source");
        for (const auto& [path, permissions] : {std::pair(target, there), std::pair(source, copied)}) {
            if (permissions != 0) {
                WriteWholeFile(path, "x");
                ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), permissions), 0);
            }
        }
        UnfinishedFile unfinished(target, source);
        WriteWholeFile(unfinished.path(), "new");
        EXPECT_EQ(PermissionsOf(unfinished.path()), there + copied == 0 ? 0644 : 0600);
        unfinished.putInPlace();
        EXPECT_EQ(PermissionsOf(target), expected) << std::oct << there << ' ' << copied;
    }
    ::umask(before);
}

TEST(Files, LinksStayAndLongNamesFit)
{
    const QTemporaryDir folder;
    const QString name(240, 'n');
    const QString target = folder.filePath("below/" + name);
    ASSERT_TRUE(CreateFolderPath(folder.filePath("below")));
    ASSERT_TRUE(QFile::link("below/" + name, folder.filePath("one")));
    ASSERT_TRUE(QFile::link("one", folder.filePath("two")));
    for (const char* content : {"while the link leads nowhere", "while it leads to a file"}) {
        UnfinishedFile unfinished(folder.filePath("two"));
        WriteWholeFile(unfinished.path(), content);
        unfinished.putInPlace();
        EXPECT_EQ(unfinished.target(), target);
        EXPECT_EQ(ReadWholeFile(target), content);
        EXPECT_TRUE(QFileInfo(folder.filePath("two")).isSymLink());
    }
}

TEST(Files, OnlyWhatDeadProgramsLeftIsRemoved)
{
    const QTemporaryDir folder;
    const QString running = QString("Family.kvf.%1.unfinished").arg(::getppid());
    // Process numbers end long before this one.
    const QStringList dead = {"Family.kvf.999999999.unfinished", "Family.kvf.999999999.unfinished-journal",
                              "Family.10_59_07.999999999.unfinished"};
    const QStringList others = {running, "Family.kvf.my.unfinished", "Family.kvf", "Other.kvf.999999999.unfinished"};
    for (const QString& name : dead + others) {
        WriteWholeFile(folder.filePath(name), "x");
    }
    {
        const UnfinishedFile clearsAway(folder.filePath("Family.kvf"));
    }
    RemoveLeftovers(folder.path(), "Family\\.\\d\\d_\\d\\d_\\d\\d");
    QStringList left = others;
    left.sort();
    EXPECT_EQ(FilesIn(folder), left);
}

} // namespace stemwright::test
