// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <string_view>

namespace stemwright
{

/// Reads text in ANSEL (ANSI/NISO Z39.47 with the extensions of GEDCOM 5.5.1). Combining marks, which stand before
/// their letter there, are moved behind it and composed with it where Unicode has the letter as one character (form
/// NFC). Bytes that ANSEL leaves free are read as Windows-1252.
QString DecodeAnsel(std::string_view bytes);

} // namespace stemwright
