// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace stemwright
{

/// The year in which a date text ends: its last four characters when they are digits, blanks at the end aside. No value
/// otherwise, as for "1819?" or "842".
std::optional<int> YearAtEnd(std::string_view date);

} // namespace stemwright
