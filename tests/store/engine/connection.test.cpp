// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/connection.h"

#include "base/error.h"
#include "base/files.h"
#include "support/childprocess.h"
#include "support/testworld.h"

#include <QtCore/QFile>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <unistd.h>

namespace stemwright::test
{

namespace
{

/// What the engine says to another process that opens the file: 0, or its error code.
int OpenedElsewhere(const QString& path)
{
    return RunInOwnProcess([&path] {
        try {
            const Connection connection(path, OpenMode::ReadWrite);
            return SQLITE_OK;
        } catch (const SQLite::Exception& exception) {
            return exception.getErrorCode();
        }
    });
}

} // namespace

TEST(Connection, KeepsOthersOutFromOpenToClose)
{
    const TestWorld world;
    const QString path = world.path("a b.kvf");
    {
        Connection connection(path, OpenMode::CreateNew);
        EXPECT_EQ(OpenedElsewhere(path), SQLITE_BUSY) << "just after it was opened";
        connection.execute("CREATE TABLE t (a)");
        EXPECT_EQ(OpenedElsewhere(path), SQLITE_BUSY) << "after a change";
        connection.countRows("t");
        EXPECT_EQ(OpenedElsewhere(path), SQLITE_BUSY) << "after reading";
        EXPECT_THROW(Connection(path, OpenMode::ReadWrite), SQLite::Exception) << "in this program, too";
    }
    EXPECT_EQ(OpenedElsewhere(path), SQLITE_OK);
}

TEST(Connection, PlaysBackWhatAKilledProgramLeft)
{
    const TestWorld world;
    const QString path = world.path("killed.kvf");
    {
        Connection connection(path, OpenMode::CreateNew);
        connection.execute("CREATE TABLE t (a); INSERT INTO t VALUES ('old');"
                           "INSERT INTO t SELECT hex(zeroblob(2000)) FROM pragma_function_list");
    }
    const auto dieWhileWriting = [&path] {
        Connection connection(path, OpenMode::ReadWrite);
        connection.execute("PRAGMA cache_size=2");
        const Transaction transaction(connection);
        connection.execute("UPDATE t SET a = 'new'");
        ::_exit(0);
        return 0;
    };
    ASSERT_EQ(RunInOwnProcess(dieWhileWriting), 0);
    ASSERT_TRUE(QFile::exists(path + "-journal"));
    Connection connection(path, OpenMode::ReadWrite);
    EXPECT_EQ(Rows(connection, "SELECT count(*) FROM t WHERE a = 'new'"), QStringList{"0"});
}

TEST(Connection, TransactionsUndoWhatWasNotCommitted)
{
    const TestWorld world;
    Connection connection(world.path("t.kvf"), OpenMode::CreateNew);
    connection.execute("CREATE TABLE t (a)");
    {
        Transaction outer(connection);
        connection.execute("INSERT INTO t VALUES (1)");
        {
            const Transaction inner(connection);
            connection.execute("INSERT INTO t VALUES (2)");
        }
        EXPECT_EQ(connection.countRows("t"), 1);
        outer.commit();
    }
    {
        const Transaction undone(connection);
        connection.execute("DELETE FROM t");
    }
    EXPECT_EQ(connection.countRows("t"), 1);
    EXPECT_FALSE(connection.inTransaction());
}

TEST(Connection, NullAndTheEmptyTextStayApart)
{
    const TestWorld world;
    Connection connection(world.path("t.kvf"), OpenMode::CreateNew);
    connection.execute("CREATE TABLE t (a VARCHAR(255), b, c LONGBLOB, d)");
    Statement insert = connection.prepare("INSERT INTO t VALUES (?1, ?2, ?3, ?4)");
    insert.bind(1, "").bind(2, QString()).bindBytes(3, QByteArray("")).bindUtf8(4, {}).run();
    Statement row = connection.prepare("SELECT * FROM t");
    ASSERT_TRUE(row.step());
    EXPECT_FALSE(row.isNull(0));
    EXPECT_FALSE(row.text(0).isNull());
    EXPECT_TRUE(row.text(1).isNull());
    EXPECT_FALSE(row.bytes(2).isNull());
    EXPECT_FALSE(row.isNull(3));
    EXPECT_EQ(row.column(u"C"), 2);
    EXPECT_THROW(row.column(u"e"), Error);
}

/// A family file must open in any other program, and a misspelt column must not pass for a text.
TEST(Connection, NamesInQuotesAreNeverTexts)
{
    const TestWorld world;
    Connection connection(world.path("t.kvf"), OpenMode::CreateNew);
    connection.execute("CREATE TABLE t (a)");
    EXPECT_THROW(connection.prepare("SELECT \"b\" FROM t"), SQLite::Exception);
    EXPECT_THROW(connection.execute("CREATE TABLE u (a CHECK (matches_pattern('x', a)));"
                                    "INSERT INTO u VALUES ('x')"),
                 SQLite::Exception);
}

} // namespace stemwright::test
