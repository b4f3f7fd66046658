// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "store/engine/schema.h"

#include <string>
#include <string_view>
#include <vector>

/// Inserts rows into a wide table of which most columns stay Null: the statement is prepared once, and a row costs only
/// the columns that are set. Fails as the engine fails. Stands on the schema.
namespace stemwright
{

enum class RowResult { Written, KeyExists };

class RowWriter
{
public:
    RowWriter(Connection& connection, const TableDefinition& table);

    /// The number of a column for set(), from 1; 0 when the table has no such column.
    int column(QStringView name) const;

    /// Sets a column of the coming row; what it was set to before is replaced. Text is copied and must be UTF-8 that
    /// the column takes.
    void setText(int column, std::string_view utf8);
    void setInteger(int column, int value);

    /// Whether a column was set to a number or to a text that is not empty.
    bool isFilled(int column) const { return m_filled[static_cast<std::size_t>(column)]; }

    /// The text of a column that was set to one; empty otherwise.
    std::string_view text(int column) const;

    /// Inserts the row and begins a new one with all columns Null. A row whose key is in the table already is not
    /// inserted.
    RowResult write();

    /// Forgets the coming row.
    void clear();

private:
    struct Piece {
        int column;
        std::size_t offset;
        std::size_t length;
    };

    std::string_view textOf(const Piece& piece) const
    {
        return std::string_view(m_texts).substr(piece.offset, piece.length);
    }

    const TableDefinition& m_table;
    Statement m_insert;
    /// The texts of the coming row, one behind the other.
    std::string m_texts;
    std::vector<Piece> m_pieces;
    /// The number of each column's piece, from 1; 0 for a column that was not set to a text.
    std::vector<std::size_t> m_pieceOf;
    std::vector<int> m_integers;
    std::vector<bool> m_filled;
};

} // namespace stemwright
