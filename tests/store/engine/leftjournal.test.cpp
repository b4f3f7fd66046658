// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/leftjournal.h"

#include "base/files.h"
#include "store/engine/connection.h"
#include "support/childprocess.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <functional>

#include <unistd.h>

namespace stemwright::test
{

namespace
{

class LeftJournal : public testing::Test
{
protected:
    /// A file whose rows all say this.
    void make(const QString& said, int rows = 400)
    {
        QFile::remove(path);
        Connection connection(path, OpenMode::CreateNew);
        connection.execute(QString("CREATE TABLE t (a); WITH RECURSIVE n(i) AS (SELECT 1 UNION SELECT i + 1 FROM n"
                                   " WHERE i < %1) INSERT INTO t SELECT '%2' || hex(zeroblob(500)) FROM n")
                               .arg(rows)
                               .arg(said));
    }

    /// A file that has as many pages as make() gives it, in another order.
    void makeOther(const QString& more)
    {
        make("kept", 192);
        Connection(path, OpenMode::ReadWrite)
            .execute("BEGIN; CREATE TABLE u (a); INSERT INTO u SELECT a FROM t; COMMIT");
        Connection(path, OpenMode::ReadWrite).execute(more);
    }

    /// Runs statements in a program that ends in the middle of the last change, with pages of it in the file already.
    void dieIn(const QString& before, const QString& statements) const
    {
        const auto die = [&] {
            Connection connection(path, OpenMode::ReadWrite);
            connection.execute("PRAGMA cache_size=2");
            connection.execute(before);
            const Transaction transaction(connection);
            connection.execute(statements);
            ::_exit(0);
            return 0;
        };
        ASSERT_EQ(RunInOwnProcess(die), 0);
    }

    /// The same in the moment before the change would have been settled: the file holds all of it.
    void dieAtTheEndOf(const QString& statements) const
    {
        const auto die = [&] {
            SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
            sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
            const auto exit = reinterpret_cast<sqlite3_syscall_ptr>(+[](const char*) { ::_exit(0); });
            EXPECT_EQ(system->xSetSystemCall(system, "unlink", exit), SQLITE_OK);
            database.exec(statements.toStdString());
            return 1;
        };
        ASSERT_EQ(RunInOwnProcess(die), 0);
    }

    /// What the rows say once the file is opened, after the look at its journal.
    QString saidWhenOpened() const
    {
        Connection connection(path, OpenMode::ReadWrite);
        EXPECT_EQ(Rows(connection, "PRAGMA integrity_check"), QStringList("ok"));
        return Rows(connection, "SELECT DISTINCT substr(a, 1, 3) FROM t").join(' ');
    }

    const TestWorld world;
    const QString path = world.path("file.kvf");
    const QString journal = path + "-journal";
    const QString aside = journal + "-of-another-file";
    const QString grow = "INSERT INTO t SELECT 'new' || a FROM t";
    const QString change = "UPDATE t SET a = 'new' || substr(a, 4)";
    /// The first page stays as it is in a change that is not the first one.
    const QString first = "UPDATE t SET a = a || 'x' WHERE rowid = 1";
};

} // namespace

TEST_F(LeftJournal, TheFilesOwnIsPlayedBack)
{
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"in the middle of a change", [this] { dieIn({}, grow); }},
        {"in a change that leaves the first page", [this] { dieIn(first, change); }},
        {"at the end of a change", [this] { dieAtTheEndOf(change); }},
        {"before a change reached the file", [this] { dieIn({}, first); }},
    };
    for (const auto& [when, die] : cases) {
        SCOPED_TRACE(when);
        make("old");
        die();
        ASSERT_TRUE(QFile::exists(journal));
        EXPECT_EQ(SetForeignJournalsAside(path), QStringList());
        EXPECT_EQ(saidWhenOpened(), "old");
    }
}

TEST_F(LeftJournal, AnotherFilesIsSetAside)
{
    const QByteArray jet = ReadWholeFile(TestData("jet/family-2.2/cats-2.2.kvf"));
    const std::tuple<const char*, std::function<void()>, std::function<void()>> cases[] = {
        {"an older copy", [this] { dieIn({}, grow); }, [this] { make("kept"); }},
        {"a smaller file", [this] { dieIn(first, change); }, [this] { make("kept", 350); }},
        {"a file of the same size", [this] { dieIn(first, change); }, [this] { makeOther(first); }},
        {"a file that has counted as many changes", [this] { dieIn({}, grow); }, [this] { makeOther({}); }},
        {"a file that has counted one change more", [this] { dieIn({}, grow); }, [this] { makeOther(first); }},
        {"a file of an earlier release", [this] { dieIn({}, grow); }, [this, jet] { WriteWholeFile(path, jet); }},
    };
    for (const auto& [what, die, replace] : cases) {
        SCOPED_TRACE(what);
        make("old");
        Connection(path, OpenMode::ReadWrite).execute(first);
        die();
        const QByteArray left = ReadWholeFile(journal);
        const QString elsewhere = world.path("elsewhere");
        ASSERT_TRUE(QFile::rename(journal, elsewhere));
        replace();
        ASSERT_TRUE(QFile::rename(elsewhere, journal));
        const QByteArray before = ReadWholeFile(path);
        EXPECT_EQ(SetForeignJournalsAside(path), QStringList(aside));
        EXPECT_EQ(ReadWholeFile(path), before);
        EXPECT_EQ(ReadWholeFile(aside), left);
        EXPECT_EQ(QDir(world.path({})).entryList(QDir::Files).size(), 2);
        QFile::remove(aside);
    }
}

TEST_F(LeftJournal, ALogIsNeverThatOfAFileWithAJournal)
{
    make("old");
    WriteWholeFile(path + "-wal", "log");
    WriteWholeFile(path + "-wal-of-another-file", "set aside before");
    EXPECT_EQ(SetForeignJournalsAside(path), QStringList(path + "-wal-of-another-file-2"));
}

TEST_F(LeftJournal, OneThatTheEngineHasDoneWithIsRemoved)
{
    make("old");
    const auto die = [this] {
        Connection connection(path, OpenMode::ReadWrite);
        connection.execute(change);
        EXPECT_EQ(SetForeignJournalsAside(path), QStringList());
        ::_exit(QFile::exists(journal) ? 0 : 1);
        return 2;
    };
    ASSERT_EQ(RunInOwnProcess(die), 0);
    ASSERT_TRUE(QFile::exists(journal));
    EXPECT_EQ(SetForeignJournalsAside(path), QStringList());
    EXPECT_FALSE(QFile::exists(journal));
    EXPECT_EQ(saidWhenOpened(), "new");
}

TEST_F(LeftJournal, ThatOfAnOpenFileIsLeftAlone)
{
    make("old");
    Connection connection(path, OpenMode::ReadWrite);
    connection.execute("PRAGMA cache_size=2");
    Transaction transaction(connection);
    connection.execute(change);
    EXPECT_EQ(SetForeignJournalsAside(path), QStringList());
    EXPECT_EQ(RunInOwnProcess([this] { return static_cast<int>(SetForeignJournalsAside(path).size()); }), 0);
    EXPECT_TRUE(QFile::exists(journal));
}

TEST_F(LeftJournal, NothingIsDoneToAFileThatIsDamagedEitherWay)
{
    make("old");
    dieIn(first, change);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(16384) && file.write(QByteArray(16384, '\xA5')) > 0);
    file.close();
    const QByteArray before = ReadWholeFile(path);
    EXPECT_TRUE(ErrorOf([this] { SetForeignJournalsAside(path); }).contains("does not mend it"));
    EXPECT_EQ(ReadWholeFile(path), before);
    EXPECT_EQ(QDir(world.path({})).entryList(QDir::Files), QStringList({"file.kvf", "file.kvf-journal"}));
}

} // namespace stemwright::test
