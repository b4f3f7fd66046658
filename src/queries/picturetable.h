// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/sorting.h"
#include "queries/piclistsql.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The list of pictures that a query selects, for a grid that asks for the cells which it shows: all texts in memory,
/// compact, and no picture read. Rows and columns are counted from 0. Stands on the statement of a query.
namespace stemwright
{

/// By which of its columns a list is sorted.
using ListSort = ColumnSort<std::size_t>;

class PictureTable
{
public:
    /// Runs a query. Throws Error when there is no such query, when it shows no column, and for a statement that is
    /// not understood; what the engine refuses fails as the engine fails.
    PictureTable(Connection& connection, const QString& queryName);

    const QString& queryName() const { return m_queryName; }

    const std::vector<ListColumn>& columns() const { return m_columns; }

    std::size_t rowCount() const { return m_rows.size(); }

    /// The number of the picture in a row.
    int pictureId(std::size_t row) const { return m_ids[m_rows[row]]; }

    /// The numbers of all pictures in the order of the rows, for album/picturelist.h.
    std::vector<int> pictureIds() const;

    /// The value of a cell as a text, empty for Null: a date and time as "2026-03-12 14:05:00", a yes/no value as
    /// "True" or "False", anything else as stored.
    QString value(std::size_t row, std::size_t column) const;
    /// The same as the grid shows it: "Yes" or "No".
    QString shown(std::size_t row, std::size_t column) const;

    /// No value while the rows stand in the order of their pictures' numbers, in which the query gives them.
    const std::optional<ListSort>& sort() const { return m_sort; }

    /// Sorts by a column: ascending, or descending when it is sorted by this column already and ascending. Picture
    /// dates sort by when they are, Null before all else.
    void sortBy(std::size_t column);
    /// Puts the rows into the order in which the query gives them.
    void unsort();

private:
    /// The texts of one column, one after another.
    class Cells
    {
    public:
        void append(std::string_view text);
        std::string_view at(std::size_t row) const;

    private:
        std::string m_text;
        std::vector<std::uint32_t> m_ends;
    };

    void read(Connection& connection, const PicListSql& sql);
    std::vector<QByteArray> sortKeys(std::size_t column) const;

    QString m_queryName;
    std::vector<ListColumn> m_columns;
    std::vector<int> m_ids;
    Cells m_encodedDates;
    std::vector<Cells> m_cells;
    /// Where each row of the list stands in the columns.
    std::vector<std::uint32_t> m_rows;
    std::optional<ListSort> m_sort;
};

/// Fills the list of pictures, with the query that QueryInUse() gives for this name. A failure is told once and gives
/// no value.
std::optional<PictureTable> OpenPictureList(Connection& connection, const Environment& environment,
                                            const QString& queryName);

} // namespace stemwright
