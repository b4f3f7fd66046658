// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/yearatend.h"

#include <charconv>

namespace stemwright
{

std::optional<int> YearAtEnd(std::string_view date)
{
    constexpr std::size_t digits = 4;
    while (!date.empty() && date.back() == ' ') {
        date.remove_suffix(1);
    }
    if (date.size() < digits) {
        return std::nullopt;
    }
    const std::string_view end = date.substr(date.size() - digits);
    if (end.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    int year = 0;
    std::from_chars(end.data(), end.data() + end.size(), year);
    return year;
}

} // namespace stemwright
