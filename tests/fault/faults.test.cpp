// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "cli/cliworld.h"
#include "fault/fingerprint.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

/// A family file with a tree, a second tree to import, and a disk that fails below the world's folder.
class FaultsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString old = world.writeTree(QStringLiteral("old.ged"));
        ASSERT_EQ(world.run({QStringLiteral("new"), file}).status, 0);
        ASSERT_EQ(world.run({QStringLiteral("--yes"), QStringLiteral("import"), file, old}).status, 0);
        ASSERT_EQ(world.run(publish).status, 0);
        before = Fingerprint(file);
        QByteArray people;
        for (int number = 1; number <= 2000; ++number) {
            people += QByteArrayLiteral("0 @I%@ INDI\n1 NAME Someone Called % /Stormcrow/\n1 BIRT\n2 PLAC Haven\n")
                          .replace('%', QByteArray::number(number));
        }
        world.write(QStringLiteral("new.ged"), "0 HEAD\n1 CHAR UTF-8\n" + people + "0 TRLR\n");
    }

    /// Runs a command on a disk that has `fault` below `folder` after so many bytes.
    Outcome runOnFaultyDisk(const QString& fault, const QString& folder, qint64 after, const QStringList& arguments)
    {
        CliWorld::Variables variables = {{QStringLiteral("LD_PRELOAD"), QStringLiteral(STEMWRIGHT_FAULTY_DISK)},
                                         {QStringLiteral("FAULTY_DISK"), fault},
                                         {QStringLiteral("FAULTY_DISK_FOLDER"), folder},
                                         {QStringLiteral("FAULTY_DISK_AFTER"), QString::number(after)},
                                         {QStringLiteral("ASAN_OPTIONS"), QStringLiteral("verify_asan_link_order=0")}};
        return world.run(arguments, variables);
    }

    /// The command failed, said why, and the family file holds what it held before.
    void expectCleanFailure(const Outcome& outcome, const QString& reason)
    {
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_TRUE(outcome.errors.contains(reason)) << outcome;
        expectFileAsBefore();
    }

    void expectFileAsBefore()
    {
        const Outcome check = world.run({QStringLiteral("check"), file});
        EXPECT_EQ(check.status, 0) << check;
        EXPECT_EQ(Fingerprint(file), before);
    }

    QStringList names() const { return QDir(world.path({})).entryList(QDir::Files); }

    CliWorld world;
    const QString file = world.path(QStringLiteral("family.kvf"));
    const QString site = world.path(QStringLiteral("site"));
    const QStringList import = {QStringLiteral("--yes"), QStringLiteral("import"), file,
                                world.path(QStringLiteral("new.ged"))};
    const QStringList publish = {QStringLiteral("--yes"), QStringLiteral("publish"), file, QStringLiteral("--output"),
                                 site};
    QString before;
};

} // namespace

TEST_F(FaultsTest, AFullDiskLeavesTheOldTree)
{
    int failed = 0;
    for (const qint64 kilobytes : {0, 1, 8, 64, 128, 200, 300, 400, 600}) {
        const Outcome outcome = runOnFaultyDisk(QStringLiteral("full"), world.path({}), kilobytes * 1024, import);
        if (outcome.status == 0) {
            break;
        }
        SCOPED_TRACE(kilobytes);
        expectCleanFailure(outcome, QStringLiteral("full"));
        ++failed;
    }
    EXPECT_GE(failed, 5);
}

TEST_F(FaultsTest, AFullDiskLeavesNoHalfFiles)
{
    const QString copy = world.path(QStringLiteral("copy.kvf"));
    ASSERT_EQ(world.run({QStringLiteral("save-as"), file, copy}).status, 0);
    const QStringList atFirst = names();
    for (const qint64 kilobytes : {0, 10, 60}) {
        SCOPED_TRACE(kilobytes);
        expectCleanFailure(runOnFaultyDisk(QStringLiteral("full"), world.path({}), kilobytes * 1024,
                                           {QStringLiteral("new"), world.path(QStringLiteral("fresh.kvf"))}),
                           QStringLiteral("full"));
        expectCleanFailure(runOnFaultyDisk(QStringLiteral("full"), world.path({}), kilobytes * 1024,
                                           {QStringLiteral("--yes"), QStringLiteral("save-as"), file, copy}),
                           QStringLiteral("full"));
        EXPECT_EQ(Fingerprint(copy), before) << "the older copy stays";
        EXPECT_EQ(names(), atFirst);
    }
}

TEST_F(FaultsTest, AFullDiskEndsThePublication)
{
    for (const qint64 kilobytes : {0, 5, 100}) {
        SCOPED_TRACE(kilobytes);
        expectCleanFailure(runOnFaultyDisk(QStringLiteral("full"), site, kilobytes * 1024, publish),
                           QStringLiteral("No space left on device"));
    }
    EXPECT_EQ(world.run(publish).status, 0);
}

TEST_F(FaultsTest, AReadOnlyFolderStaysAsItIs)
{
    const QStringList atFirst = names();
    const QString folder = world.path({});
    expectCleanFailure(runOnFaultyDisk(QStringLiteral("readonly"), folder, 0, import), QStringLiteral("family.kvf"));
    expectCleanFailure(runOnFaultyDisk(QStringLiteral("readonly"), folder, 0,
                                       {QStringLiteral("new"), world.path(QStringLiteral("fresh.kvf"))}),
                       QStringLiteral("fresh.kvf"));
    expectCleanFailure(runOnFaultyDisk(QStringLiteral("readonly"), site, 0, publish), site);
    EXPECT_EQ(names(), atFirst);
}

TEST_F(FaultsTest, AGedcomFileThatVanishesLeavesTheOldTree)
{
    for (const qint64 bytes : {0, 1000, 100'000}) {
        SCOPED_TRACE(bytes);
        expectCleanFailure(
            runOnFaultyDisk(QStringLiteral("unreadable"), world.path(QStringLiteral("new.ged")), bytes, import),
            QStringLiteral("Input/output error"));
    }
}

TEST_F(FaultsTest, AnUnsuitableOutputFolderIsLeftAlone)
{
    const QString beside = world.write(QStringLiteral("beside.txt"), "mine");
    for (const QString& output : {world.path({}), beside, file, QStringLiteral("/"), QDir::homePath()}) {
        const Outcome outcome =
            world.run({QStringLiteral("--yes"), QStringLiteral("publish"), file, QStringLiteral("--output"), output});
        expectCleanFailure(outcome, QStringLiteral("Please choose"));
    }
    EXPECT_EQ(ReadWholeFile(beside), "mine");
}
