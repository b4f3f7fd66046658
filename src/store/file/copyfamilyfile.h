// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/files.h"
#include "base/talk.h"
#include "store/engine/connection.h"

#include <QtCore/QString>

/// Whole copies of the open family file, made through the engine, so that they are whole whatever the connection is
/// doing meanwhile. A copy is written beside its place, checked, and put there in one step: until then an older file in
/// that place stays as it is. Failures: Error, SQLite::Exception. Stands on the connection.
namespace stemwright
{

/// Copies the open family file to `target`, or to where a link there leads, replacing a file that stands there. Refuses
/// to replace the open file itself and a file that another program has open. Must not be called within a transaction.
void CopyFamilyFile(Connection& connection, const QString& target);

/// Throws Error when `target` is the open family file itself.
void RequireOtherFile(const Connection& connection, const QString& target);

/// Where the backup of a family file goes: the same folder and base name, the extension ".ffb". Where the path is that
/// of a link, they are those of the file itself.
QString BackupPath(const QString& familyFile);

/// Whether the file to which a path leads has a backup's extension.
bool IsBackup(const QString& path);

/// Copies the open family file to its backup, replacing an older one. Returns the backup's path. Where the older one
/// holds more individuals - an import broke off since, which left half a tree - it is kept under another name, and the
/// user is told which. Must not be called within a transaction.
QString BackupFamilyFile(Connection& connection, Talk& talk);

/// Makes sure that a file can be put at `path`: the folder is there and can be written, and a file that stands there is
/// no folder, not write-protected and not open in any program. Changes nothing.
void PrepareToReplace(const QString& path);

/// Puts a whole family file in its place (UnfinishedFile::putInPlace()). What the engine left beside the file that goes
/// goes with it, so that its journal is not taken for that of the file which comes.
void PutFamilyFileInPlace(UnfinishedFile& file);

} // namespace stemwright
