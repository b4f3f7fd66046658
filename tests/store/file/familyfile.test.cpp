// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/familyfile.h"

#include "base/files.h"
#include "store/file/fileflows.h"
#include "support/childprocess.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>

#include <functional>

#include <sys/stat.h>
#include <unistd.h>

namespace stemwright::test
{

namespace
{

const QString cannotOpen = "Cannot open family file";
const QString cannotCreate = "Cannot create family file";

/// The bytes of a new, closed family file.
QByteArray NewFileBytes()
{
    TestWorld world;
    const QString path = world.newFamilyFile().path();
    world.file.close();
    return ReadWholeFile(path);
}

/// Makes the process an ordinary user for a while, since the superuser may write everywhere.
class OrdinaryUser
{
public:
    OrdinaryUser() { become(m_before == 0 ? nobody : m_before); }

    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    ~OrdinaryUser() { become(m_before); }

private:
    static constexpr uid_t nobody = 65534;

    void become(uid_t user) { EXPECT_EQ(::setresuid(user, user, m_before), 0); }

    const uid_t m_before = ::geteuid();
};

/// What a program that was killed in an import leaves beside the family file.
QByteArray JournalOfAKilledImport(const QString& path)
{
    const auto die = [&path] {
        Connection connection(path, OpenMode::ReadWrite);
        connection.execute("PRAGMA cache_size=2");
        const Transaction transaction(connection);
        connection.execute(
            "DELETE FROM Indi; WITH RECURSIVE n(i) AS (SELECT 1 UNION SELECT i + 1 FROM n WHERE i < 9999)"
            " INSERT INTO Indi (Id) SELECT i FROM n");
        ::_exit(0);
        return 0;
    };
    EXPECT_EQ(RunInOwnProcess(die), 0);
    return ReadWholeFile(path + "-journal");
}

} // namespace

TEST(FamilyFile, WhatIsNoFamilyFileIsRefusedAndTheOpenOneStaysOpen)
{
    const QByteArray whole = NewFileBytes();
    // The first table stands behind the schema and the page directory, each of which fills a page of 16 KB.
    QByteArray damaged = whole;
    damaged.replace(2 * 16384, 4096, QByteArray(4096, '\xA5'));

    const std::pair<QByteArray, QString> contents[] = {
        {"", "is empty"},
        {"0 HEAD\n1 CHAR UTF-8\n", "not a family file"},
        {QByteArray("\0\1\0\0Standard Jet DB\0\0", 21) + QByteArray(4096, '\0'), "Access 97"},
        {whole.left(whole.size() - 8192), "damaged"},
        {whole.left(100), "damaged"},
        {damaged, "damaged"},
    };
    TestWorld world;
    const QString open = world.newFamilyFile().path();
    const auto expectRefused = [&](const QString& path, const QString& reason) {
        world.talk.expect(cannotOpen);
        EXPECT_FALSE(OpenFamilyFile(world.file, path, world.environment)) << reason;
        const QString& text = world.talk.shown().back().text;
        EXPECT_TRUE(text.contains(reason)) << reason << ": " << text;
        EXPECT_EQ(world.file.path(), open);
        EXPECT_EQ(world.connection().countRows("GenInfo"), 1);
    };
    for (const auto& [content, reason] : contents) {
        expectRefused(world.write("other.kvf", content), reason);
    }
    for (const QStringList& row : TestTable("store/strangers.txt")) {
        const QString path = world.write("other.kvf", whole);
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(row[0].toStdString());
        expectRefused(path, row[1]);
    }
}

TEST(FamilyFile, WhatIsNotOursStaysAsItIs)
{
    TestWorld world;
    const QString family = world.newFamilyFile().path();
    world.file.close();
    const QString stranger = world.path("stranger.kvf");
    enum class Log { Settled, Left };
    const auto spread = [](const QString& path, const std::string& sql, Log log) {
        const auto spreadIt = [&] {
            SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
            database.exec("PRAGMA journal_mode=WAL; " + sql);
            if (log == Log::Left) {
                ::_exit(0);
            }
            return 0;
        };
        EXPECT_EQ(RunInOwnProcess(spreadIt), 0);
    };
    for (const Log log : {Log::Settled, Log::Left}) {
        spread(stranger, "CREATE TABLE IF NOT EXISTS t (a); INSERT INTO t VALUES (1)", log);
        const QByteArray before = ReadWholeFile(stranger);
        const QStringList names = QDir(world.path({})).entryList(QDir::Files);
        EXPECT_EQ(names.contains("stranger.kvf-wal"), log == Log::Left);
        world.talk.expect(cannotOpen).expect(cannotCreate);
        EXPECT_FALSE(OpenFamilyFile(world.file, stranger, world.environment));
        // A file that cannot be created leaves the one whose place it was to take.
        TestWorld broken;
        ASSERT_TRUE(CreateFolderPath(broken.path("graphics/tree.gif")));
        world.application = ApplicationFolder(broken.path({}));
        EXPECT_FALSE(CreateFamilyFile(world.file, stranger, world.environment));
        EXPECT_EQ(ReadWholeFile(stranger), before);
        EXPECT_EQ(QDir(world.path({})).entryList(QDir::Files), names);
    }
    spread(family, "INSERT INTO Indi (Id) VALUES (1)", Log::Left);
    ASSERT_TRUE(OpenFamilyFile(world.file, family, world.environment));
    EXPECT_EQ(world.column("SELECT count(*) FROM Indi"), QStringList("1"));
    EXPECT_EQ(world.column("PRAGMA journal_mode"), QStringList("delete"));
}

TEST(FamilyFile, NobodyWorksInABackup)
{
    TestWorld world;
    const QString old = world.write("old.FFB", ReadWholeFile(TestData("jet/family-2.2/cats-2.2.kvf")));
    const QString backup = world.write("new.ffb", NewFileBytes());
    ASSERT_TRUE(QFile::link(backup, world.path("link.kvf")));
    for (const QString& path : {old, backup, world.path("link.kvf")}) {
        world.talk.expect(cannotOpen);
        EXPECT_FALSE(OpenFamilyFile(world.file, path, world.environment));
        EXPECT_TRUE(world.talk.shown().back().text.contains("It is a backup.")) << path;
    }
    world.talk.expect(cannotCreate);
    EXPECT_FALSE(CreateFamilyFile(world.file, backup, world.environment));
    EXPECT_EQ(ReadWholeFile(backup), NewFileBytes());
}

TEST(FamilyFile, PlacesThatHoldNoFileAreRefused)
{
    TestWorld world;
    ASSERT_TRUE(CreateFolderPath(world.path("folder")));
    const auto expectRefused = [&world](auto procedure, const QString& title, const QString& name, const char* reason) {
        world.talk.expect(title);
        EXPECT_FALSE(procedure(world.file, world.path(name), world.environment)) << name;
        EXPECT_TRUE(world.talk.shown().back().text.contains(reason)) << reason;
    };
    expectRefused(OpenFamilyFile, cannotOpen, "missing.kvf", "no such file");
    expectRefused(OpenFamilyFile, cannotOpen, "folder", "is a folder");
    expectRefused(CreateFamilyFile, cannotCreate, "folder", "is not a file");
    expectRefused(CreateFamilyFile, cannotCreate, "nowhere/x.kvf", "no folder");
    const QString longName(244, 'n');
    expectRefused(CreateFamilyFile, cannotCreate, longName + ".kvf", "name of the file is too long");
    world.write(longName + ".kvf", NewFileBytes());
    expectRefused(OpenFamilyFile, cannotOpen, longName + ".kvf", "name of the file is too long");
    EXPECT_TRUE(CreateFamilyFile(world.file, world.path(longName.first(240) + ".kvf"), world.environment));
    world.file.close();
    EXPECT_FALSE(world.file.isOpen());
}

TEST(FamilyFile, WriteProtectedFilesAndFoldersAreRefused)
{
    TestWorld world;
    const QString folder = world.path("protected");
    ASSERT_TRUE(CreateFolderPath(folder));
    ASSERT_EQ(::chmod(QFile::encodeName(world.path({})).constData(), 0755), 0);
    const QString path = world.write("protected/a.kvf", NewFileBytes());
    const auto expectRefused = [&world, &path](const QString& reason) {
        world.talk.expect(cannotOpen);
        const OrdinaryUser user;
        EXPECT_FALSE(OpenFamilyFile(world.file, path, world.environment));
        EXPECT_TRUE(world.talk.shown().back().text.contains(reason)) << world.talk.shown().back().text;
    };
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0444), 0);
    expectRefused("The file is write-protected. Please copy the file into a folder of your own");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0666), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    expectRefused("is write-protected. Please copy the file");
    world.talk.expect(cannotCreate);
    {
        const OrdinaryUser user;
        EXPECT_FALSE(CreateFamilyFile(world.file, folder + "/b.kvf", world.environment));
    }
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0755), 0);
}

TEST(FamilyFile, AFileInUseIsNeitherOpenedNorReplaced)
{
    TestWorld world;
    const QString path = world.path("used.kvf");
    FamilyFile other;
    ASSERT_TRUE(CreateFamilyFile(other, path, world.environment));
    world.talk.expect(cannotOpen).expect(cannotCreate);
    EXPECT_FALSE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_FALSE(CreateFamilyFile(world.file, path, world.environment));
    for (const Message& message : world.talk.shown()) {
        EXPECT_TRUE(message.text.contains("in use by this or another program"));
    }
    EXPECT_TRUE(OpenFamilyFile(other, path, world.environment)) << "the open file is open already";
    EXPECT_EQ(other.connection().countRows("GenInfo"), 1);
}

TEST(FamilyFile, AFailedCreationLeavesTheOldFile)
{
    TestWorld world;
    const QString path = world.newFamilyFile().path();
    world.file.connection().execute("INSERT INTO Indi (Id) VALUES (7)");
    // The emblem that cannot be read makes the creation fail in the middle.
    world.application = ApplicationFolder(world.path("application"));
    ASSERT_TRUE(CreateFolderPath(world.application.file("graphics/tree.gif")));
    world.file.close();
    world.talk.expect(cannotCreate);
    EXPECT_FALSE(CreateFamilyFile(world.file, path, world.environment));
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(world.file.connection().countRows("Indi"), 1);
    EXPECT_EQ(QDir(world.path({})).entryList(QDir::Files), QStringList{"Family.kvf"});
}

TEST(FamilyFile, AJournalThatWasLeftBehindIsNotPlayedIntoTheFileThatComes)
{
    const QByteArray jet = ReadWholeFile(TestData("jet/family-2.2.9930/cats-2.2.9930.kvf"));
    TestWorld world;
    const QString path = world.newFamilyFile().path();
    world.execute("INSERT INTO Indi (Id) VALUES (1), (2)");
    ASSERT_TRUE(SaveFamilyFileAs(world.file, world.path("older.kvf"), world.environment));
    world.execute("INSERT INTO Indi (Id) VALUES (3)");
    ASSERT_TRUE(SaveFamilyFileAs(world.file, world.path("latest.kvf"), world.environment));
    world.file.close();
    const QByteArray left = JournalOfAKilledImport(path);
    const QByteArray older = ReadWholeFile(world.path("older.kvf"));
    const QString opening = "Opening family file";

    const auto expectPeople = [&](const char* number) {
        EXPECT_EQ(world.column("SELECT count(*) FROM Indi"), QStringList(number));
        EXPECT_EQ(world.column("PRAGMA integrity_check"), QStringList("ok"));
        world.file.close();
    };
    WriteWholeFile(path, older);
    WriteWholeFile(path + "-journal", left);
    world.talk.expect(opening);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment)) << "a backup that was put back";
    EXPECT_TRUE(world.talk.shown().back().text.contains(path + "-journal-of-another-file"));
    expectPeople("2");

    WriteWholeFile(path, ReadWholeFile(world.path("latest.kvf")));
    const QByteArray leftByLatest = JournalOfAKilledImport(path);
    WriteWholeFile(path, older);
    WriteWholeFile(path + "-journal", leftByLatest);
    world.talk.expect(opening);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment)) << "another copy of the same size and age";
    expectPeople("2");

    WriteWholeFile(path, jet);
    WriteWholeFile(path + "-journal", left);
    world.talk.expect(opening).expect("Creating Backup Family File");
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment)) << "an upgrade";
    expectPeople("13");

    WriteWholeFile(path + "-journal", left);
    ASSERT_TRUE(CreateFamilyFile(world.file, path, world.environment)) << "a new file";
    expectPeople("0");
}

} // namespace stemwright::test
