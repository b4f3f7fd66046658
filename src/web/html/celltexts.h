// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// How dates and texts of the family tree stand in the cells of personal pages. All take UTF-8; nothing here fails.
/// Stands on escape.h.
namespace stemwright
{

/// The words of a UTF-8 text (between single blanks), each after one blank, with its first character in upper case and
/// the others in lower case; the text begins with a blank: " 12 Jan 1900".
std::string ProperCase(std::string_view utf8);

/// A date as element text, in proper case.
std::string DateCell(std::string_view date);

/// A text as element text, its lines under each other.
std::string TextCell(std::string_view utf8);

} // namespace stemwright
