// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "sqlite.h"
#include "stopwatch.h"

#include <cstdio>
#include <cstring>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// limit_import IMPORTED.kvf FRESH [TABLE...]: what storing an imported tree, or the rows of other tables, costs at the
/// least. Reads the rows from a family file into memory, then puts the same rows into the same tables of a fresh
/// database: prepared statements, one transaction, the same durability, indexes after the rows. Prints when it began,
/// on the machine's clock, and the seconds from opening the fresh database to having closed it.
namespace
{

using namespace stemwright::bench;

/// Texts of any number, held in large pieces that never move.
class TextStore
{
public:
    const char* keep(std::string_view text)
    {
        if (text.size() > pieceSize - m_used) {
            m_pieces.push_back(std::make_unique<char[]>(pieceSize));
            m_used = 0;
        }
        char* place = m_pieces.back().get() + m_used;
        std::memcpy(place, text.data(), text.size());
        m_used += text.size();
        return place;
    }

private:
    static constexpr std::size_t pieceSize = 1 << 22;
    std::vector<std::unique_ptr<char[]>> m_pieces;
    std::size_t m_used = pieceSize;
};

/// A value that is not Null. Numbers have no text.
struct Cell {
    int column;
    int size;
    const char* text;
    sqlite3_int64 number;
};

struct Table {
    std::string name;
    std::string sql;
    std::string indexSql;
    int columns = 0;
    std::vector<std::size_t> rowEnds;
    std::deque<Cell> cells;
};

Table ReadTable(const Database& source, const std::string& name, TextStore& texts)
{
    Table table{name, {}, {}, 0, {}, {}};
    Statement schema =
        Prepare(source, "SELECT type, sql FROM sqlite_master WHERE tbl_name = '" + name + "' AND sql IS NOT NULL");
    while (sqlite3_step(schema.get()) == SQLITE_ROW) {
        const bool isTable = sqlite3_column_text(schema.get(), 0)[0] == 't';
        const auto* sql = reinterpret_cast<const char*>(sqlite3_column_text(schema.get(), 1));
        (isTable ? table.sql : table.indexSql) += std::string(sql) + ';';
    }
    Statement rows = Prepare(source, "SELECT * FROM \"" + name + "\" ORDER BY rowid");
    table.columns = sqlite3_column_count(rows.get());
    while (sqlite3_step(rows.get()) == SQLITE_ROW) {
        for (int column = 0; column < table.columns; ++column) {
            const int type = sqlite3_column_type(rows.get(), column);
            if (type == SQLITE_INTEGER) {
                table.cells.push_back({column, 0, nullptr, sqlite3_column_int64(rows.get(), column)});
            } else if (type != SQLITE_NULL) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(rows.get(), column));
                const int size = sqlite3_column_bytes(rows.get(), column);
                const std::string_view view(text, static_cast<std::size_t>(size));
                table.cells.push_back({column, size, texts.keep(view), 0});
            }
        }
        table.rowEnds.push_back(table.cells.size());
    }
    return table;
}

std::string InsertSql(const Table& table)
{
    std::string sql = "INSERT INTO \"" + table.name + "\" VALUES (?";
    for (int column = 1; column < table.columns; ++column) {
        sql += ",?";
    }
    return sql + ")";
}

void InsertRows(const Database& target, const Table& table)
{
    const Statement insert = Prepare(target, InsertSql(table));
    sqlite3_stmt* statement = insert.get();
    auto cell = table.cells.begin();
    std::size_t done = 0;
    for (const std::size_t end : table.rowEnds) {
        sqlite3_clear_bindings(statement);
        for (; done < end; ++done, ++cell) {
            if (cell->text == nullptr) {
                sqlite3_bind_int64(statement, cell->column + 1, cell->number);
            } else {
                sqlite3_bind_text(statement, cell->column + 1, cell->text, cell->size, SQLITE_STATIC);
            }
        }
        if (sqlite3_step(statement) != SQLITE_DONE) {
            Fail(target.get());
        }
        sqlite3_reset(statement);
    }
}

void WriteTables(const char* path, const std::vector<Table>& tables)
{
    const Database target = Open(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    Execute(target, "PRAGMA locking_mode=EXCLUSIVE; PRAGMA synchronous=FULL; BEGIN");
    for (const Table& table : tables) {
        Execute(target, table.sql);
        InsertRows(target, table);
        Execute(target, table.indexSql);
    }
    Execute(target, "COMMIT");
}

double MeasureInsertion(const char* sourcePath, const char* targetPath, const std::vector<std::string>& names)
{
    TextStore texts;
    std::vector<Table> tables;
    {
        const Database source = Open(sourcePath, SQLITE_OPEN_READONLY);
        for (const std::string& name : names) {
            tables.push_back(ReadTable(source, name, texts));
        }
    }
    const Stopwatch watch;
    WriteTables(targetPath, tables);
    return watch.seconds();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fputs("Usage: limit_import IMPORTED.kvf FRESH [TABLE...]\n", stderr);
        return 2;
    }
    std::vector<std::string> tables(argv + 3, argv + argc);
    if (tables.empty()) {
        tables = {"Indi", "Fam", "Fam2Child", "SchemaIndi", "SchemaFam", "Spouse2Fam"};
    }
    const double began = stemwright::bench::Now();
    try {
        std::printf("%.6f %.6f\n", began, MeasureInsertion(argv[1], argv[2], tables));
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "limit_import: %s\n", exception.what());
        return 1;
    }
}
