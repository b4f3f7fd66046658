// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A table of texts held in memory, compact: the cells of a row stand one after another in one block of bytes, behind
/// one bit for each column that says whether it has a cell, since most are Null. Reading fails as the engine fails.
/// Stands on the connection.
namespace stemwright
{

class TextTable
{
public:
    /// A table with this many columns and no rows.
    explicit TextTable(std::size_t columns = 0) : m_columns(columns), m_presenceBytes((columns + 7) / 8) {}

    /// Appends a row: the statement's columns from `first` on, as many as the table has.
    void appendRow(const Statement& statement, int first);

    std::size_t rows() const { return m_begin.size(); }

    /// The cell's UTF-8 text; no value for Null. Valid while the table lives and does not grow.
    std::optional<std::string_view> cell(std::size_t row, std::size_t column) const;

    /// The cell's text, empty for Null.
    std::string_view text(std::size_t row, std::size_t column) const
    {
        return cell(row, column).value_or(std::string_view());
    }

private:
    void appendLength(std::size_t length);
    std::size_t readLength(std::size_t& position) const;

    std::size_t m_columns;
    std::size_t m_presenceBytes;
    std::vector<std::uint64_t> m_begin;
    std::string m_bytes;
};

} // namespace stemwright
