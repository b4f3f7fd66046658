// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/byterows.h"

#include <algorithm>

namespace stemwright
{

namespace
{

/// The first bytes as a number that sorts like them, which settles most comparisons without a look at the block.
std::uint64_t Beginning(std::string_view bytes)
{
    constexpr unsigned byteBits = 8;
    std::uint64_t beginning = 0;
    for (std::size_t place = 0; place < sizeof beginning; ++place) {
        beginning = beginning << byteBits | (place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0U);
    }
    return beginning;
}

} // namespace

std::vector<std::uint32_t> ByteRows::sorted() const
{
    struct Row {
        std::uint64_t beginning;
        std::uint32_t number;
    };

    std::vector<Row> rows;
    rows.reserve(size());
    for (std::size_t row = 0; row < size(); ++row) {
        rows.push_back({Beginning((*this)[row]), static_cast<std::uint32_t>(row)});
    }
    std::sort(rows.begin(), rows.end(), [this](const Row& first, const Row& second) {
        if (first.beginning != second.beginning) {
            return first.beginning < second.beginning;
        }
        const int order = (*this)[first.number].compare((*this)[second.number]);
        return order != 0 ? order < 0 : first.number < second.number;
    });
    std::vector<std::uint32_t> numbers;
    numbers.reserve(rows.size());
    std::transform(rows.begin(), rows.end(), std::back_inserter(numbers), [](const Row& row) { return row.number; });
    return numbers;
}

} // namespace stemwright
