// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/texttable.h"

namespace stemwright
{

namespace
{

/// A cell begins with its length plus one, zero for Null, in groups of seven bits, the lowest first; the top bit of a
/// byte says that another follows.
constexpr std::size_t groupBits = 7;
constexpr std::size_t moreFollows = 0x80;

} // namespace

void TextTable::appendRow(const Statement& statement, int first)
{
    m_begin.push_back(m_bytes.size());
    for (int column = 0; column < static_cast<int>(m_columns); ++column) {
        if (statement.isNull(first + column)) {
            appendLength(0);
            continue;
        }
        const std::string_view text = statement.utf8(first + column);
        appendLength(text.size() + 1);
        m_bytes.append(text);
    }
}

std::optional<std::string_view> TextTable::cell(std::size_t row, std::size_t column) const
{
    std::size_t position = m_begin[row];
    for (std::size_t before = 0;; ++before) {
        const std::size_t stored = readLength(position);
        const std::size_t length = stored == 0 ? 0 : stored - 1;
        if (before == column) {
            return stored == 0 ? std::nullopt
                               : std::optional<std::string_view>(std::in_place, m_bytes.data() + position, length);
        }
        position += length;
    }
}

void TextTable::appendLength(std::size_t length)
{
    for (; length >= moreFollows; length >>= groupBits) {
        m_bytes.push_back(static_cast<char>((length & (moreFollows - 1)) | moreFollows));
    }
    m_bytes.push_back(static_cast<char>(length));
}

std::size_t TextTable::readLength(std::size_t& position) const
{
    const auto first = static_cast<unsigned char>(m_bytes[position]);
    if (first < moreFollows) {
        ++position;
        return first;
    }
    std::size_t length = 0;
    for (std::size_t shift = 0;; shift += groupBits) {
        const auto byte = static_cast<unsigned char>(m_bytes[position++]);
        length |= static_cast<std::size_t>(byte & (moreFollows - 1)) << shift;
        if ((byte & moreFollows) == 0) {
            return length;
        }
    }
}

} // namespace stemwright
