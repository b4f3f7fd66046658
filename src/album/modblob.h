// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

/// Copies files into and out of the long columns of a family file (pictures, thumbnails, emblems) in chunks, over the
/// engine's incremental access, so that memory use does not grow with the size of the value. A memo is copied as UTF-8
/// text; a column of any other type is left alone. Failures: Error for the file or a row that is not there,
/// SQLite::Exception for the family file. Stands on the schema.
namespace stemwright
{

/// A long value of a family file: the column of the row with this row number.
struct BlobField {
    QString table;
    QString column;
    qint64 row = 0;
};

/// Replaces the field's value by the whole content of the file, which must exist. The caller's transaction decides when
/// it becomes durable.
void LoadFileIntoField(Connection& connection, const QString& fileName, const BlobField& field);

/// Writes the field's bytes to the file, replacing it. A Null field, and a column that holds no long values, gives an
/// empty file. A file that could not be written to its end is removed.
void SaveFieldToFile(Connection& connection, const BlobField& field, const QString& fileName);

} // namespace stemwright
