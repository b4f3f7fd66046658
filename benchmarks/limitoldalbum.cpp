// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "stopwatch.h"

// It names types of GLib without including it.
#include <glib.h>

#include <mdbtools.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

/// limit_oldalbum OLD.mdb: what reading an old album costs at the least: libmdb fetches all values of all rows as
/// texts. Prints when it began, on the machine's clock, the seconds, and the number of rows.
namespace
{

/// Longer than any text of the albums that are measured.
constexpr std::size_t longestText = 16'384;

unsigned ReadAlbum(const char* path)
{
    MdbHandle* database = mdb_open(path, MDB_NOFLAGS);
    if (database == nullptr) {
        throw std::runtime_error("The album cannot be opened");
    }
    MdbTableDef* table = mdb_read_table_by_name(database, const_cast<char*>("AlbumTOC"), MDB_TABLE);
    if (table == nullptr) {
        throw std::runtime_error("The album has no table AlbumTOC");
    }
    mdb_read_columns(table);
    std::vector<std::string> texts(table->num_cols, std::string(longestText, '\0'));
    for (unsigned column = 0; column < table->num_cols; ++column) {
        mdb_bind_column(table, static_cast<int>(column) + 1, texts[column].data(), nullptr);
    }
    mdb_rewind_table(table);
    unsigned rows = 0;
    while (mdb_fetch_row(table) != 0) {
        ++rows;
    }
    mdb_free_tabledef(table);
    mdb_close(database);
    return rows;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("Usage: limit_oldalbum OLD.mdb\n", stderr);
        return 2;
    }
    const double began = stemwright::bench::Now();
    try {
        const stemwright::bench::Stopwatch watch;
        const unsigned rows = ReadAlbum(argv[1]);
        std::printf("%.6f %.6f %u\n", began, watch.seconds(), rows);
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "limit_oldalbum: %s\n", exception.what());
        return 1;
    }
}
