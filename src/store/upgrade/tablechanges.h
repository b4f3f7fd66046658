// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "store/engine/schema.h"

/// Changes of tables, and how files are written that take their place only when they are whole. Fails as the engine
/// fails. Stands on the schema.
namespace stemwright
{

bool HasColumn(Connection& connection, const QString& table, QStringView column);

/// Appends a column to a table. One that is there stays as it is: an upgrade that once broke off may have added it.
void AddColumn(Connection& connection, const QString& table, const QString& column, ColumnType type);

/// Deletes a column with its values; one that is not there is no error.
void DropColumn(Connection& connection, const QString& table, const QString& column);

/// The Error of a table whose rows or pictures are not all in the new file.
[[noreturn]] void FailNotWhole(const QString& table);

/// From now on nothing guards the file against interruptions, which makes writing it much faster. For files that are
/// thrown away unless they become whole.
void WriteUnguarded(Connection& connection);

} // namespace stemwright
