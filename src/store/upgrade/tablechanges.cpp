// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/upgrade/tablechanges.h"

#include "base/error.h"
#include "store/engine/tablesql.h"
#include "store/tables/tableshape.h"

namespace stemwright
{

bool HasColumn(Connection& connection, const QString& table, QStringView column)
{
    return ColumnsOf(connection, table).contains(column, Qt::CaseInsensitive);
}

void AddColumn(Connection& connection, const QString& table, const QString& column, ColumnType type)
{
    if (!HasColumn(connection, table, column)) {
        connection.execute(QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                               .arg(QuotedName(table), QuotedName(column), DeclaredType(type)));
    }
}

void DropColumn(Connection& connection, const QString& table, const QString& column)
{
    if (HasColumn(connection, table, column)) {
        connection.execute(QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(QuotedName(table), QuotedName(column)));
    }
}

void FailNotWhole(const QString& table)
{
    throw Error(
        QStringLiteral("Table %1 did not arrive whole in the new file. Please try again; if that does not help, "
                       "the disk may be failing.")
            .arg(table));
}

void WriteUnguarded(Connection& connection)
{
    connection.execute(QStringLiteral("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF"));
}

} // namespace stemwright
