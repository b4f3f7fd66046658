// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

/// What tells a family file from any other file. A family file may come from anyone, so nothing is believed: neither
/// its name nor what its schema would do. A file that is none fails with Error, which says what it is instead.
/// Stands on the schema and the upgrade steps.
namespace stemwright
{

/// In which format a file is kept.
enum class FileFormat { Engine, Jet };

/// Looks at the file from outside, before anything opens it: it is there, it is in a format in which family files are
/// or were kept, and it and its folder can be written.
FileFormat RecogniseFormat(const QString& path);

/// Looks at what an open file holds: all tables that files of its version have, and nothing that a family file does not
/// have (a trigger could undo what the user does). Once it is known for a family file, and not before, it is made one
/// file (Connection::keepInOneFile()). Returns the version that the file states.
QString RequireFamilyFile(Connection& connection);

} // namespace stemwright
