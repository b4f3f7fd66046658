// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/connection.h"

#include "base/error.h"
#include "store/engine/jetsql.h"
#include "store/engine/textfunctions.h"

#include <QtCore/QFileInfo>

#include <sqlite3.h>

#include <mutex>
#include <new>
#include <utility>

namespace stemwright
{

namespace
{

/// What the engine may keep of the file in memory: enough for the upper pages of every table and index and for sorting
/// an index of 100,000 rows in few runs, and little beside the rest of the program. More gains nothing, since tables
/// are filled and read in their own order.
constexpr int cacheKilobytes = 8192;

/// A family file may come from anyone: nothing in its schema may run code, and damaged pages must be noticed. A name in
/// double quotes is always a name, so that a misspelt column is an error and not a text.
void Harden(SQLite::Database& database)
{
    sqlite3* handle = database.getHandle();
    for (const auto& [option, value] :
         {std::pair(SQLITE_DBCONFIG_DEFENSIVE, 1), std::pair(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0),
          std::pair(SQLITE_DBCONFIG_ENABLE_TRIGGER, 0), std::pair(SQLITE_DBCONFIG_ENABLE_VIEW, 0),
          std::pair(SQLITE_DBCONFIG_DQS_DML, 0), std::pair(SQLITE_DBCONFIG_DQS_DDL, 0)}) {
        sqlite3_db_config(handle, option, value, nullptr);
    }
    database.exec("PRAGMA cell_size_check=ON");
}

/// How a new file is laid out. A large value fills a chain of pages, each of which names the next; what stands behind
/// it in its row is found by following the chain. The page directory that incremental vacuuming keeps lets the engine
/// guess the next page without reading this one, and larger pages make the chain short. Measured for 2,000 thumbnails
/// of 14 KB behind pictures of 1 MB, against the same behind 10 KB: 35 times as long with pages of 4 KB and no
/// directory, 2.0 with 4 KB and the directory, 1.5 with 8 KB, 1.3 with 16 KB, 1.6 with 32 KB (every row's own page is
/// read whole).
constexpr int pageSize = 16384;

void LayOut(SQLite::Database& database)
{
    database.exec("PRAGMA page_size=" + std::to_string(pageSize));
    database.exec("PRAGMA auto_vacuum=INCREMENTAL");
}

/// Takes the lock that keeps every other program out until the connection is closed: in this mode the engine never
/// lowers a lock that it has. A journal that a killed program left is played back here.
void Lock(SQLite::Database& database)
{
    database.exec("PRAGMA locking_mode=EXCLUSIVE");
    database.exec("BEGIN EXCLUSIVE; COMMIT");
    database.exec("PRAGMA synchronous=FULL");
}

/// A write-ahead log that another program left is read, but stays where it is, unless keepInOneFile() is called.
void LeaveLogAlone(SQLite::Database& database)
{
    const QString path = QString::fromUtf8(sqlite3_db_filename(database.getHandle(), "main"));
    const int holdsSomething = QFileInfo(path + QStringLiteral("-wal")).size() > 0 ? 1 : 0;
    sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, holdsSomething, nullptr);
}

/// While one thread writes a site's tables, windows in another may want to show a picture: the engine makes them wait.
int OpenFlags(OpenMode mode)
{
    const int create = mode == OpenMode::CreateNew ? SQLite::OPEN_CREATE : 0;
    return SQLite::OPEN_READWRITE | SQLite::OPEN_FULLMUTEX | create;
}

/// Keeps the connection's other thread out, in the manner of std::mutex: what the engine says of a failure is said by
/// the connection, where the next failure of either thread takes its place.
class EngineMutex
{
public:
    explicit EngineMutex(sqlite3* database) : m_mutex(sqlite3_db_mutex(database)) {}

    void lock() { sqlite3_mutex_enter(m_mutex); }

    void unlock() { sqlite3_mutex_leave(m_mutex); }

private:
    sqlite3_mutex* m_mutex;
};

/// The engine itself looks only when it begins a journal, which it keeps as long as it holds the file.
void RequireInPlace(sqlite3* database)
{
    int moved = 0;
    if (sqlite3_file_control(database, nullptr, SQLITE_FCNTL_HAS_MOVED, &moved) == SQLITE_OK && moved != 0) {
        throw Error(
            QStringLiteral("The family file is no longer in its place: it was moved or deleted, or its disk was "
                           "taken away. Put it back, or save it under another name."));
    }
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(const SQLite::Database& database, const QByteArray& sql) : m_database(database.getHandle())
{
    EngineMutex mutex(m_database);
    const std::lock_guard alone(mutex);
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(m_database, sql.constData(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result != SQLITE_OK) {
        throw SQLite::Exception(m_database, result);
    }
    m_statement.reset(statement);
}

/// What binding a value came to.
void Statement::check(int result)
{
    if (result != SQLITE_OK) {
        throw SQLite::Exception(sqlite3_errstr(result), result);
    }
}

Statement& Statement::bind(int parameter, const QString& value)
{
    if (value.isNull()) {
        return bindNull(parameter);
    }
    const QByteArray utf8 = value.toUtf8();
    check(sqlite3_bind_text64(m_statement.get(), parameter, utf8.constData(), static_cast<sqlite3_uint64>(utf8.size()),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
    return *this;
}

Statement& Statement::bind(int parameter, int value)
{
    check(sqlite3_bind_int(m_statement.get(), parameter, value));
    return *this;
}

Statement& Statement::bind(int parameter, qint64 value)
{
    check(sqlite3_bind_int64(m_statement.get(), parameter, value));
    return *this;
}

Statement& Statement::bind(int parameter, const std::optional<int>& value)
{
    return value ? bind(parameter, *value) : bindNull(parameter);
}

Statement& Statement::bindBytes(int parameter, const QByteArray& value)
{
    if (value.isNull()) {
        return bindNull(parameter);
    }
    check(sqlite3_bind_blob64(m_statement.get(), parameter, value.constData(),
                              static_cast<sqlite3_uint64>(value.size()), SQLITE_TRANSIENT));
    return *this;
}

Statement& Statement::bindUtf8(int parameter, std::string_view utf8)
{
    const char* text = utf8.data() == nullptr ? "" : utf8.data();
    check(sqlite3_bind_text64(m_statement.get(), parameter, text, utf8.size(), SQLITE_STATIC, SQLITE_UTF8));
    return *this;
}

Statement& Statement::bindNull(int parameter)
{
    check(sqlite3_bind_null(m_statement.get(), parameter));
    return *this;
}

Statement& Statement::bind(int parameter, const EngineValue& value)
{
    check(sqlite3_bind_value(m_statement.get(), parameter, value.get()));
    return *this;
}

bool Statement::step()
{
    const int result = sqlite3_step(m_statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        EngineMutex mutex(m_database);
        const std::lock_guard alone(mutex);
        // Says again what this statement failed with, whatever was said of others meanwhile.
        sqlite3_reset(m_statement.get());
        throw SQLite::Exception(m_database, result);
    }
    return result == SQLITE_ROW;
}

void Statement::reset()
{
    // The result of the last step, which step() has already reported, is all that a reset can fail with.
    sqlite3_reset(m_statement.get());
}

int Statement::run()
{
    step();
    reset();
    return sqlite3_changes(m_database);
}

int Statement::columnCount() const
{
    return sqlite3_column_count(m_statement.get());
}

QString Statement::columnName(int column) const
{
    return QString::fromUtf8(sqlite3_column_name(m_statement.get(), column));
}

int Statement::column(QStringView name) const
{
    for (int column = 0; column < columnCount(); ++column) {
        if (name.compare(columnName(column), Qt::CaseInsensitive) == 0) {
            return column;
        }
    }
    throw Error(QStringLiteral("The family file has no column named %1 where one is expected.").arg(name));
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

QString Statement::text(int column) const
{
    if (isNull(column)) {
        return {};
    }
    const QString value = QString::fromUtf8(utf8(column));
    return value.isNull() ? QStringLiteral("") : value;
}

int Statement::integer(int column) const
{
    return sqlite3_column_int(m_statement.get(), column);
}

qint64 Statement::integer64(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

std::optional<int> Statement::optionalInteger(int column) const
{
    return isNull(column) ? std::nullopt : std::optional<int>(integer(column));
}

QByteArray Statement::bytes(int column) const
{
    QByteArray copy = rawBytes(column);
    copy.detach();
    return copy;
}

QByteArray Statement::rawBytes(int column) const
{
    if (isNull(column)) {
        return {};
    }
    const auto* data = static_cast<const char*>(sqlite3_column_blob(m_statement.get(), column));
    return data == nullptr ? QByteArray("")
                           : QByteArray::fromRawData(data, sqlite3_column_bytes(m_statement.get(), column));
}

std::string_view Statement::utf8(int column) const
{
    return optionalUtf8(column).value_or("");
}

std::optional<std::string_view> Statement::optionalUtf8(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement.get(), column));
    if (text == nullptr) {
        return std::nullopt;
    }
    return std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(m_statement.get(), column)));
}

EngineValue Statement::value(int column) const
{
    EngineValue copy(sqlite3_value_dup(sqlite3_column_value(m_statement.get(), column)), sqlite3_value_free);
    if (copy == nullptr) {
        throw std::bad_alloc();
    }
    return copy;
}

Connection::Connection(const QString& path, OpenMode mode)
    : m_path(path), m_database(path.toUtf8().constData(), OpenFlags(mode))
{
    Harden(m_database);
    if (mode == OpenMode::CreateNew) {
        LayOut(m_database);
    }
    m_database.exec("PRAGMA cache_size=-" + std::to_string(cacheKilobytes));
    LeaveLogAlone(m_database);
    Lock(m_database);
    AddTextFunctions(m_database.getHandle());
}

void Connection::keepInOneFile()
{
    m_database.exec("PRAGMA journal_mode=DELETE");
}

Statement Connection::prepare(const QString& sql)
{
    return Statement(m_database, sql.toUtf8());
}

Statement Connection::prepareJet(const QString& sql)
{
    return prepare(TranslateJetSql(sql));
}

int Connection::execute(const QString& sql)
{
    EngineMutex mutex(m_database.getHandle());
    const std::lock_guard alone(mutex);
    return m_database.exec(sql.toUtf8().constData());
}

int Connection::executeJet(const QString& sql)
{
    return execute(TranslateJetSql(sql));
}

bool Connection::hasTable(QStringView name)
{
    Statement statement =
        prepare(QStringLiteral("SELECT 1 FROM sqlite_master WHERE type='table' AND name=?1 COLLATE NOCASE"));
    return statement.bind(1, name.toString()).step();
}

qint64 Connection::countRows(const QString& table)
{
    Statement statement = prepare(QStringLiteral("SELECT count(*) FROM \"%1\"").arg(table));
    statement.step();
    return statement.integer64(0);
}

qint64 Connection::lastInsertId() const
{
    return m_database.getLastInsertRowid();
}

bool Connection::inTransaction() const
{
    return sqlite3_get_autocommit(m_database.getHandle()) == 0;
}

Transaction::Transaction(Connection& connection) : m_connection(connection), m_nested(connection.inTransaction())
{
    RequireInPlace(connection.engine().getHandle());
    m_connection.execute(m_nested ? QStringLiteral("SAVEPOINT inner_action") : QStringLiteral("BEGIN IMMEDIATE"));
}

Transaction::~Transaction()
{
    // A full or failing disk makes the engine undo everything on its own; then there is nothing left to undo here.
    if (!m_open || !m_connection.inTransaction()) {
        return;
    }
    try {
        m_connection.execute(m_nested ? QStringLiteral("ROLLBACK TO inner_action; RELEASE inner_action")
                                      : QStringLiteral("ROLLBACK"));
    } catch (const SQLite::Exception&) {
        // Whatever fails in undoing is undone when the file is opened again.
    }
}

void Transaction::commit()
{
    m_connection.execute(m_nested ? QStringLiteral("RELEASE inner_action") : QStringLiteral("COMMIT"));
    m_open = false;
}

} // namespace stemwright
