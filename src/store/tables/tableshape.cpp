// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/tables/tableshape.h"

#include "base/error.h"

namespace stemwright
{

namespace
{

Statement AskForColumns(Connection& connection)
{
    return connection.prepare(QStringLiteral("SELECT name, hidden FROM pragma_table_xinfo(?1)"));
}

QStringList ColumnsOf(Statement& column, const QString& table)
{
    QStringList names;
    column.reset();
    column.bind(1, table);
    while (column.step()) {
        if (column.integer(1) != 0) {
            throw Error(QStringLiteral("Its table %1 computes the column %2, which no family file does.")
                            .arg(table, column.text(0)));
        }
        names << column.text(0);
    }
    return names;
}

void RequireTable(Statement& question, const TableDefinition& table)
{
    const QStringList columns = ColumnsOf(question, table.name);
    if (columns.isEmpty()) {
        RefuseWithoutTable(table.name);
    }
    for (const ColumnDefinition& column : table.columns) {
        if (!columns.contains(column.name, Qt::CaseInsensitive)) {
            throw Error(QStringLiteral("It is not a whole family file: its table %1 has no column %2.")
                            .arg(table.name, column.name));
        }
    }
}

} // namespace

QStringList ColumnsOf(Connection& connection, const QString& table)
{
    Statement column = AskForColumns(connection);
    return ColumnsOf(column, table);
}

void RequireTable(Connection& connection, const TableDefinition& table)
{
    Statement question = AskForColumns(connection);
    RequireTable(question, table);
}

void RequireTables(Connection& connection)
{
    // Preparing the question takes as long as asking it.
    Statement question = AskForColumns(connection);
    for (const TableDefinition& table : FamilyFileTables()) {
        RequireTable(question, table);
    }
}

void RefuseWithoutTable(const QString& table)
{
    throw Error(QStringLiteral("It is not a family file, or not a whole one: it has no table %1.").arg(table));
}

} // namespace stemwright
