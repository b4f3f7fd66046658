// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <string_view>

/// How texts compare: everywhere in the program, in memory and in the family file's queries, by one rule. Upper and
/// lower case are one for every script, blanks at the end do not count, and names sort as a reader expects them, É
/// beside E. The order is the Unicode collation algorithm's root order at its second strength; it depends neither on
/// the user's locale nor on the machine, so that published pages are the same everywhere. Fails only, with a
/// std::runtime_error, where the ICU library has lost its data.
namespace stemwright
{

/// Less than, equal to or greater than zero, as `first` sorts before, with or after `second`.
int CompareTexts(QStringView first, QStringView second);
/// The same for UTF-8.
int CompareTexts(std::string_view first, std::string_view second);

/// Whether two names are the same name.
bool SameName(QStringView first, QStringView second);

/// Bytes that compare (as unsigned bytes, which is how QByteArray's < compares them) as CompareTexts() compares the
/// texts. Making the keys once is much faster than comparing texts over and over in a sort.
QByteArray CollationKey(QStringView text);

/// Whether all bytes are below 0x80, as in most names: of such a text each byte is a character.
bool IsAscii(std::string_view bytes);

} // namespace stemwright
