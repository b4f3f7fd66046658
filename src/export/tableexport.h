// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "export/exporttable.h"

#include <QtCore/QStringList>

/// The export of a list of pictures to a text file, from the user's point of view: where to, with what between the
/// columns, and the questions on the way. Stands on ExportTable.
namespace stemwright
{

/// The delimiters that are offered, the default first. Any other text is taken as it stands.
const QStringList& OfferedDelimiters();

/// The output file that is proposed for a query, in this folder.
QString ProposedExportPath(const QString& folder, const QString& queryName);

struct TableExport {
    QString path;
    QString delimiter = tabDelimiter;
    TextEncoding encoding = TextEncoding::System;
};

/// Writes all columns of the list to the file, after asking about a missing folder and a file that exists. The file is
/// written beside its place and put there when it is whole. The family file at `familyFile` is never written over.
/// False when nothing was written, or, after the user ended it at a row that cannot be written, when the file has only
/// the rows before; the user was told why.
bool ExportTableAsText(const PictureTable& table, const TableExport& wanted, const QString& familyFile, Talk& talk);

} // namespace stemwright
