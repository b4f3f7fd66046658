// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Byte strings by row number, one after another in one block: sort keys, and texts that are searched. Nothing here
/// fails. Stands on nothing.
namespace stemwright
{

class ByteRows
{
public:
    void append(std::string_view bytes)
    {
        m_bytes.append(bytes);
        m_end.push_back(m_bytes.size());
    }

    std::size_t size() const { return m_end.size(); }

    /// Valid while the object lives and does not grow.
    std::string_view operator[](std::size_t row) const
    {
        const std::size_t begin = row == 0 ? 0 : m_end[row - 1];
        return {m_bytes.data() + begin, m_end[row] - begin};
    }

    /// The numbers of the rows in the order of their bytes, compared as unsigned; equal ones keep their order.
    std::vector<std::uint32_t> sorted() const;

private:
    std::string m_bytes;
    std::vector<std::uint64_t> m_end;
};

} // namespace stemwright
