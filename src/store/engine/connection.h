// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <optional>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;
struct sqlite3_value;

/// The connection to a family file, and the one place where the program's QString meets the engine's UTF-8. Failures of
/// the engine come as SQLite::Exception, which ErrorText() can show. Stands on base only.
namespace stemwright
{

/// One value of any kind as the engine holds it, which outlives its row and its statement.
using EngineValue = std::shared_ptr<sqlite3_value>;

/// A prepared statement. Parameters are numbered from 1, columns from 0. A null QString stands for Null and an empty
/// one for the empty string, in both directions. It speaks to the engine directly, because the wrapper's statement
/// cannot take text by pointer and length, which is what makes filling large tables fast.
class Statement
{
public:
    Statement(const SQLite::Database& database, const QByteArray& sql);

    Statement& bind(int parameter, const QString& value);
    Statement& bind(int parameter, int value);
    Statement& bind(int parameter, qint64 value);
    Statement& bind(int parameter, const std::optional<int>& value);
    Statement& bindBytes(int parameter, const QByteArray& value);
    /// Binds UTF-8 text without copying it; it must stay alive until the statement was run.
    Statement& bindUtf8(int parameter, std::string_view utf8);
    Statement& bindNull(int parameter);
    Statement& bind(int parameter, const EngineValue& value);

    /// Goes to the next row; false when there is none.
    bool step();
    /// Makes the statement ready to run again; bindings stay.
    void reset();
    /// Runs a statement that returns no rows and resets it; bindings stay. Returns the number of changed rows.
    int run();

    int columnCount() const;
    QString columnName(int column) const;
    /// The number of the column with this name, without regard to case. Throws Error when there is none.
    int column(QStringView name) const;

    bool isNull(int column) const;
    QString text(int column) const;
    int integer(int column) const;
    qint64 integer64(int column) const;
    std::optional<int> optionalInteger(int column) const;
    QByteArray bytes(int column) const;
    /// The same without copying, valid until the next step.
    QByteArray rawBytes(int column) const;
    /// The column's text as UTF-8, valid until the next step. Null gives an empty view.
    std::string_view utf8(int column) const;
    /// The same, with no value for Null.
    std::optional<std::string_view> optionalUtf8(int column) const;
    EngineValue value(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };

    static void check(int result);

    sqlite3* m_database;
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

enum class OpenMode { CreateNew, ReadWrite };

/// One open database file, held exclusively: while it lives, no other program can open the file.
class Connection
{
public:
    /// Opens or creates the file at `path`. Throws SQLite::Exception; SQLITE_BUSY means that another program holds it.
    /// Opening plays back the journal of a change that broke off, and changes nothing else.
    Connection(const QString& path, OpenMode mode);

    const QString& path() const { return m_path; }

    /// Ends the mode, in which another program may have left the file, that spreads it over several files.
    void keepInOneFile();

    /// Prepares a statement of the engine's own SQL. It can compare and sort texts by the rule of base/text.h with
    /// COLLATE names.
    Statement prepare(const QString& sql);
    /// Prepares a statement of the dialect of earlier releases (jetsql.h).
    Statement prepareJet(const QString& sql);
    /// Runs engine SQL that returns no rows; several statements may be separated by ";". Returns the number of rows
    /// changed by the last one.
    int execute(const QString& sql);
    int executeJet(const QString& sql);

    bool hasTable(QStringView name);
    /// The number of rows of a table.
    qint64 countRows(const QString& table);
    qint64 lastInsertId() const;
    bool inTransaction() const;

    SQLite::Database& engine() { return m_database; }

private:
    QString m_path;
    SQLite::Database m_database;
};

/// One user action. What was done since it began is undone when it goes out of scope without commit(). A transaction
/// inside another becomes a part of it and is undone alone. Throws Error when the file is no longer where it was
/// opened: what is written then would be gone with the program.
class Transaction
{
public:
    explicit Transaction(Connection& connection);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void commit();

private:
    Connection& m_connection;
    bool m_nested;
    bool m_open = true;
};

} // namespace stemwright
