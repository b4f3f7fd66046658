// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "export/encodedtext.h"
#include "queries/picturetable.h"

/// Writing a list of pictures as delimited text, without quoting: what a value holds stands in the file as it is.
/// Stands on picture tables.
namespace stemwright
{

/// The word that stands for a tab character among the delimiters.
inline const QString tabDelimiter = QStringLiteral("<tab>");

enum class ExportOutcome {
    Complete,
    /// A row could not be written and the user did not want to go on without it.
    Aborted,
    /// There was nothing that could be written; the user was told.
    Refused
};

/// Writes the names of the first `columnCount` columns and a line for each row, in the order in which the query gives
/// the rows, whatever the list is sorted by; the list itself stays as it is. Asks about each row that the encoding
/// cannot represent. Throws Error for a delimiter that it cannot represent.
ExportOutcome ExportTable(const PictureTable& table, std::size_t columnCount, const QString& delimiter,
                          EncodedText& file, Talk& talk);

} // namespace stemwright
