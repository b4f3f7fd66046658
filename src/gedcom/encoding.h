// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/charset.h"

#include <QtCore/QIODevice>

/// What character set a GEDCOM file is really in. Its header is believed where the bytes bear it out. Files that cannot
/// be GEDCOM text (empty, a ZIP archive, binary data) are refused with Error. Stands on the reader.
namespace stemwright
{

struct FileEncoding {
    Charset charset = Charset::Utf8;
    /// The name of a named character set; otherwise empty.
    QString name = {};
    /// Where the text begins, behind the byte-order mark, in bytes.
    qint64 start = 0;
    /// The value of the header's CHAR line; empty when there is none or when a byte-order mark decided.
    QString declared = {};
    /// Whether the declared character set is unknown, or cannot be the file's, and so no more than a guess is left.
    bool isGuessed = false;
};

/// Recognises the encoding of a file that is open and can be positioned. In this order: a byte-order mark; the NUL
/// bytes of UTF-16; UTF-8 when it is declared; UTF-8 when all of the file is valid UTF-8 beyond ASCII, whatever is
/// declared; the declared character set; and Windows-1252 for everything else. "IBMPC" is code page 850 when the file
/// has letters that only this one has, and code page 437 otherwise. What is declared may be any name that ICU knows, or
/// the number of a code page.
FileEncoding DetectEncoding(QIODevice& file);

/// Refuses, by the first bytes of a file that is open and can be positioned, what DetectEncoding() would refuse.
void RequireText(QIODevice& file);

} // namespace stemwright
