// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "cli/cliworld.h"
#include "fault/fingerprint.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryFile>

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
        ASSERT_TRUE(log.open());
        const QString old = world.writeTree("old.ged");
        ASSERT_EQ(world.run({"new", file}).status, 0);
        ASSERT_EQ(world.run({"--yes", "import", file, old}).status, 0);
        for (const char* display : {"Outline", "Descendant Tree", "CollapsiTree", "Ancestor Tree"}) {
            const char* head = QByteArrayView(display).startsWith("Anc") ? "3" : "1";
            ASSERT_EQ(world.run({"setup", "tree", file, "Default", "add", "--head", head, "--display", display}).status,
                      0);
        }
        ASSERT_EQ(world.run(publish).status, 0);
        before = Fingerprint(file);
        QByteArray people;
        for (int number = 1; number <= 2000; ++number) {
            people += QByteArrayLiteral("0 @I%@ INDI\n1 NAME Someone Called % /Stormcrow/\n1 BIRT\n2 PLAC Haven\n")
                          .replace('%', QByteArray::number(number));
        }
        world.write("new.ged", "0 HEAD\n1 CHAR UTF-8\n" + people + "0 TRLR\n");
    }

    /// Runs a command on a disk that has `fault` below `folder` after so many bytes.
    Outcome runOnFaultyDisk(const QString& fault, const QString& folder, qint64 after, const QStringList& arguments)
    {
        return world.run(arguments, {{"LD_PRELOAD", STEMWRIGHT_FAULTY_DISK},
                                     {"FAULTY_DISK", fault},
                                     {"FAULTY_DISK_FOLDER", folder},
                                     {"FAULTY_DISK_AFTER", QString::number(after)},
                                     {"FAULTY_DISK_LOG", log.fileName()},
                                     {"ASAN_OPTIONS", "verify_asan_link_order=0"}});
    }

    /// The command failed, said why, and the family file holds what it held before.
    void expectCleanFailure(const Outcome& outcome, const QString& reason)
    {
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_TRUE(outcome.errors.contains(reason)) << outcome;
        const Outcome check = world.run({"check", file});
        EXPECT_EQ(check.status, 0) << check;
        EXPECT_EQ(Fingerprint(file), before);
    }

    QStringList names() const { return QDir(world.path({})).entryList(QDir::Files); }

    CliWorld world;
    QTemporaryFile log;
    const QString file = world.path("family.kvf");
    const QString site = world.path("site");
    const QStringList import = {"--yes", "import", file, world.path("new.ged")};
    const QStringList publish = {"--yes", "publish", file, "--output", site};
    QString before;
};

} // namespace

TEST_F(FaultsTest, AFullOrBrokenDiskLeavesTheOldTree)
{
    for (const auto& [fault, reason] : {std::pair("full", "full"), std::pair("broken", "damaged or gone")}) {
        int failed = 0;
        for (const qint64 kilobytes : {0, 1, 8, 64, 128, 200, 300, 400, 600, 800}) {
            const Outcome outcome = runOnFaultyDisk(fault, world.path({}), kilobytes * 1024, import);
            if (outcome.status == 0) {
                break;
            }
            SCOPED_TRACE(kilobytes);
            expectCleanFailure(outcome, reason);
            ++failed;
        }
        EXPECT_GE(failed, 5) << fault;
    }
}

TEST_F(FaultsTest, AFullDiskIsCalledSoWhateverIsDone)
{
    for (const QStringList& command : {QStringList{"query", "new", file, "Mine"}, {"setup", "new", file, "Mine"}}) {
        expectCleanFailure(runOnFaultyDisk("full", world.path({}), 0, command), "The disk is full.");
    }
}

/// What keeps a power cut from leaving half of something.
TEST_F(FaultsTest, WhatIsReliedOnIsOnTheDiskFirst)
{
    ASSERT_EQ(runOnFaultyDisk("none", world.path({}), 0, {"--yes", "import", file, world.path("old.ged")}).status, 0);
    QString steps = QString::fromUtf8(ReadWholeFile(log.fileName()));
    steps.replace(world.path({}), "folder").remove("folder/").remove(QRegularExpression(".*settings/.*\n"));
    steps.replace(QRegularExpression(R"(\.\d+\.)"), ".");
    // How often one file is flushed in a row is the engine's affair.
    steps.replace(QRegularExpression(R"((flush .*\n)\1+)"), R"(\1)");
    EXPECT_EQ(steps.toStdString(),
              "flush family.ffb.unfinished\nrename family.ffb.unfinished family.ffb\nflush folder\n"
              "flush family.kvf-journal\nflush folder\nflush family.kvf-journal\nflush family.kvf\n"
              "flush family.kvf-journal\n");
}

TEST_F(FaultsTest, AFullDiskLeavesNoHalfFiles)
{
    const QString copy = world.path("copy.kvf");
    ASSERT_EQ(world.run({"save-as", file, copy}).status, 0);
    const QStringList atFirst = names();
    for (const qint64 kilobytes : {0, 10, 60}) {
        SCOPED_TRACE(kilobytes);
        expectCleanFailure(runOnFaultyDisk("full", world.path({}), kilobytes * 1024, {"new", world.path("fresh.kvf")}),
                           "full");
        expectCleanFailure(runOnFaultyDisk("full", world.path({}), kilobytes * 1024, {"--yes", "save-as", file, copy}),
                           "full");
        EXPECT_EQ(Fingerprint(copy), before) << "the older copy stays";
        EXPECT_EQ(names(), atFirst);
    }
}

TEST_F(FaultsTest, AFailingDiskLeavesTheFileOfAnEarlierRelease)
{
    const QByteArray old = ReadWholeFile(STEMWRIGHT_TEST_DATA "/jet/family-2.2/cats-2.2.kvf");
    const QString path = world.write("cats.kvf", old);
    const QStringList atFirst = names();
    const auto expectUntouched = [&](const QString& answer, const QString& fault, const QString& place, qint64 after,
                                     const QString& reason) {
        SCOPED_TRACE(after);
        const Outcome outcome = runOnFaultyDisk(fault, place, after, {answer, "open", path});
        EXPECT_EQ(outcome.status, 1) << outcome;
        EXPECT_TRUE(outcome.errors.contains(reason)) << outcome;
        EXPECT_EQ(ReadWholeFile(path), old);
        EXPECT_EQ(names(), atFirst) << outcome;
    };
    expectUntouched("--yes", "full", world.path({}), 300 * 1024, "No space left on device");
    for (const qint64 kilobytes : {0, 100, 400, 700, 1000}) {
        expectUntouched("--no", "full", world.path({}), kilobytes * 1024, "full");
    }
    expectUntouched("--no", "unreadable", path, 0, "Input/output error");
    expectUntouched("--no", "unreadable", path, 100'000, "Input/output error");
    expectUntouched("--yes", "readonly", world.path({}), 0, "write-protected");
}

TEST_F(FaultsTest, OfAPictureThatCannotBeReadToItsEndNothingMovesIn)
{
    const QString old = STEMWRIGHT_TEST_DATA "/jet/family-2.0/";
    const QString path = world.write("cats.kvf", ReadWholeFile(old + "cats-2.0.kvf"));
    const QString picture = world.write("big121.jpg", ReadWholeFile(old + "big121.jpg"));
    const Outcome outcome = runOnFaultyDisk("unreadable", picture, 50'000, {"--yes", "open", path});
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_TRUE((outcome.output + outcome.errors).contains("big121.jpg")) << outcome;
    Connection connection(path, OpenMode::ReadWrite);
    EXPECT_EQ(Rows(connection, "SELECT PicFilename, Picture, PicType FROM AlbumTOC WHERE PicFilename LIKE 'big121%'"),
              QStringList{"big121.jpg|-|-"});
}

TEST_F(FaultsTest, AFullDiskEndsThePublication)
{
    qint64 whole = 0;
    for (QDirIterator pages(site, QDir::Files, QDirIterator::Subdirectories); pages.hasNext();) {
        whole += pages.nextFileInfo().size();
    }
    for (const qint64 bytes : {qint64(0), whole / 4, whole / 2, whole - 8'000, whole - 2'500, whole - 50}) {
        SCOPED_TRACE(bytes);
        expectCleanFailure(runOnFaultyDisk("full", site, bytes, publish), "No space left on device");
        EXPECT_FALSE(QFile::exists(site + "/index.html")) << "nobody takes it for a finished site";
    }
    EXPECT_EQ(world.run(publish).status, 0);
}

TEST_F(FaultsTest, AReadOnlyFolderStaysAsItIs)
{
    const QStringList atFirst = names();
    const QString folder = world.path({});
    expectCleanFailure(runOnFaultyDisk("readonly", folder, 0, import), "family.kvf");
    expectCleanFailure(runOnFaultyDisk("readonly", folder, 0, {"new", world.path("fresh.kvf")}), "fresh.kvf");
    expectCleanFailure(runOnFaultyDisk("readonly", site, 0, publish), site);
    EXPECT_EQ(names(), atFirst);
}

TEST_F(FaultsTest, AGedcomFileThatVanishesLeavesTheOldTree)
{
    for (const qint64 bytes : {0, 1000, 100'000}) {
        SCOPED_TRACE(bytes);
        expectCleanFailure(runOnFaultyDisk("unreadable", world.path("new.ged"), bytes, import), "Input/output error");
    }
}

TEST_F(FaultsTest, AnUnsuitableOutputFolderIsLeftAlone)
{
    const QString beside = world.write("beside.txt", "mine");
    for (const QString& output : QStringList{world.path({}), beside, file, "/", QDir::homePath()}) {
        const Outcome outcome = world.run({"--yes", "publish", file, "--output", output});
        expectCleanFailure(outcome, "Please choose");
    }
    EXPECT_EQ(ReadWholeFile(beside), "mine");
}
