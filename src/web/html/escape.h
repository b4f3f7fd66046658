// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Puts texts into pages. Pages are ASCII, and so valid ISO-8859-1 whatever a browser takes them for (the head of the
/// tree pages names its character set in a way that browsers do not read); every other character becomes a numeric
/// character reference, so that every name of every script shows. Whatever comes from data goes through the function
/// for the place where it is written. All functions append to `page` and take UTF-8 (damaged sequences show as U+FFFD);
/// control characters are left out, line breaks and tabs become blanks. Nothing here fails. Stands on nothing.
namespace stemwright
{

/// Element text, or an attribute's value between double quotes.
void AppendText(std::string& page, std::string_view utf8);

/// HTML that its author wrote: only encoded, markup and line breaks stay.
void AppendAuthorHtml(std::string& page, std::string_view utf8);

/// How a double quote stands inside a script's string that is written between double quotes: as the concatenation of
/// three strings, or after a backslash.
enum class ScriptQuotes { Concatenated, Escaped };

/// Text that a script's string in double quotes hands over to innerHTML: first element text, then script text.
void AppendScriptText(std::string& page, std::string_view utf8, ScriptQuotes quotes);

/// An address after "mailto:", in an attribute (RFC 6068: everything but the usual characters is percent-encoded).
void AppendMailAddress(std::string& page, std::string_view utf8);

/// A web address in an attribute, with "http://" before it unless it names http or https itself. Percent-encodes what
/// may not stand in a URL (RFC 3986) and keeps what is already encoded.
void AppendWebAddress(std::string& page, std::string_view utf8);

/// Whether a web address names its scheme, http or https.
bool NamesWebScheme(std::string_view utf8);

} // namespace stemwright
