// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/engine/connection.h"

#include <QtCore/QStringList>

/// The end of an upgrade: a new file whose tables are exactly those of this release, filled from the file that the
/// upgrade steps worked on. Fails with Error for a file that lacks a table or column, and as the engine fails. Stands
/// on the tables.
namespace stemwright
{

/// Prepares the file that the steps worked on: every table is there, with all columns. Returns what will stay behind
/// because family files have no place for it, each as a phrase: columns, and what is too long of texts.
QStringList PrepareForCurrentFile(Connection& work);

/// Writes the new file at `path` from the prepared one, which must be closed, and looks whether every row and every
/// picture arrived.
void WriteCurrentFile(const QString& path, const QString& preparedFile, Talk& talk);

} // namespace stemwright
