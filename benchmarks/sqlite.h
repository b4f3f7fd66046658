// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>

/// The engine as the limits and the generators use it: bare, but closed in the end. Throws std::runtime_error. Stands
/// on SQLite.
namespace stemwright::bench
{

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }

    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

using Database = std::unique_ptr<sqlite3, Closer>;
using Statement = std::unique_ptr<sqlite3_stmt, Closer>;

[[noreturn]] inline void Fail(sqlite3* database)
{
    throw std::runtime_error(database == nullptr ? "out of memory" : sqlite3_errmsg(database));
}

inline Database Open(const char* path, int flags)
{
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(path, &handle, flags, nullptr);
    Database database(handle);
    if (result != SQLITE_OK) {
        Fail(handle);
    }
    return database;
}

inline Statement Prepare(const Database& database, const std::string& sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database.get(), sql.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
        Fail(database.get());
    }
    return Statement(statement);
}

inline void Execute(const Database& database, const std::string& sql)
{
    if (sqlite3_exec(database.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        Fail(database.get());
    }
}

} // namespace stemwright::bench
