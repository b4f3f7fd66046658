// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "store/engine/schema.h"

#include <QtCore/QStringList>

/// Which tables and columns an open file really has, against those that it should have. What is missing fails with
/// Error. Stands on the schema.
namespace stemwright
{

/// The names of a table's columns in order; none when there is no such table. Throws Error for a table that computes a
/// column, which no family file does.
QStringList ColumnsOf(Connection& connection, const QString& table);

/// Makes sure that the file has a table, with all of its columns.
void RequireTable(Connection& connection, const TableDefinition& table);

/// Makes sure that the file has all tables of a family file.
void RequireTables(Connection& connection);

/// The Error of a file that lacks a table.
[[noreturn]] void RefuseWithoutTable(const QString& table);

} // namespace stemwright
