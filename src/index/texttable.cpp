// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/texttable.h"

#include <bit>

namespace stemwright
{

namespace
{

/// A cell begins with its length plus one, zero for Null, in groups of seven bits, the lowest first; the top bit of a
/// byte says that another follows.
constexpr std::size_t groupBits = 7;
constexpr std::size_t moreFollows = 0x80;
constexpr std::size_t byteBits = 8;

unsigned char Bit(std::size_t column)
{
    return static_cast<unsigned char>(1U << (column % byteBits));
}

} // namespace

void TextTable::appendRow(const Statement& statement, int first)
{
    const std::size_t begin = m_bytes.size();
    m_begin.push_back(begin);
    m_bytes.append(m_presenceBytes, '\0');
    for (std::size_t column = 0; column < m_columns; ++column) {
        const int source = first + static_cast<int>(column);
        if (const std::optional<std::string_view> text = statement.optionalUtf8(source)) {
            char& presence = m_bytes[begin + column / byteBits];
            presence = static_cast<char>(static_cast<unsigned char>(presence) | Bit(column));
            appendLength(text->size());
            m_bytes.append(*text);
        }
    }
}

std::optional<std::string_view> TextTable::cell(std::size_t row, std::size_t column) const
{
    const std::size_t begin = m_begin[row];
    const auto presence = [this, begin](std::size_t byte) { return static_cast<unsigned char>(m_bytes[begin + byte]); };
    const std::size_t own = column / byteBits;
    if ((presence(own) & Bit(column)) == 0) {
        return std::nullopt;
    }
    int before = std::popcount(static_cast<unsigned>(presence(own) & (Bit(column) - 1)));
    for (std::size_t byte = 0; byte < own; ++byte) {
        before += std::popcount(presence(byte));
    }
    std::size_t position = begin + m_presenceBytes;
    for (; before > 0; --before) {
        const std::size_t length = readLength(position);
        position += length;
    }
    const std::size_t length = readLength(position);
    return std::string_view(m_bytes.data() + position, length);
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
