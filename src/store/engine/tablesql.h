// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "store/engine/schema.h"

/// The tables of the schema in the engine: the SQL that is made from their definitions. Fails as the engine fails.
/// Stands on the schema and the connection.
namespace stemwright
{

/// The type with which the engine is told of a column. It decides how the engine converts what is written: names with
/// CHAR or TEXT keep text as it is (a place named 007 stays 007), while MEMO, DATE and the like would turn it into
/// numbers.
QString DeclaredType(ColumnType type);

/// A name in double quotes, as the engine takes every name.
QString QuotedName(const QString& name);

/// The engine's statements that create a table and its secondary indexes, word for word as the engine keeps them.
QString CreateTableSql(const TableDefinition& table);
QStringList CreateIndexesSql(const TableDefinition& table);

/// Creates a table without its secondary indexes; filling a table and indexing it afterwards is much faster than the
/// other way round. Fails when the table exists.
void CreateBareTable(Connection& connection, const TableDefinition& table);

/// Creates the secondary indexes of a table.
void CreateIndexes(Connection& connection, const TableDefinition& table);

/// Creates a table with its indexes.
void CreateTable(Connection& connection, const TableDefinition& table);

/// Deletes a table with its rows and indexes; a missing table is no error.
void DropTable(Connection& connection, const TableDefinition& table);

} // namespace stemwright
