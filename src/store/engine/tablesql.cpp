// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/tablesql.h"

#include <algorithm>
#include <limits>

namespace stemwright
{

namespace
{

/// The rule that a column's values keep. Most columns of a tree are Null, and asking that first costs a fifth of what
/// measuring the length of nothing does when many rows are inserted.
QString CheckOf(const ColumnDefinition& column)
{
    QString rule;
    switch (column.type) {
    case ColumnType::Text:
        rule = column.zeroLength == ZeroLength::Allowed ? QStringLiteral("length(\"%1\") <= %2")
                                                        : QStringLiteral("length(\"%1\") BETWEEN 1 AND %2");
        rule = rule.arg(column.name).arg(maxTextLength);
        break;
    case ColumnType::YesNo:
        rule = QStringLiteral("\"%1\" IN (0, -1)").arg(column.name);
        break;
    case ColumnType::Integer:
        rule = QStringLiteral("\"%1\" BETWEEN %2 AND %3")
                   .arg(column.name)
                   .arg(std::numeric_limits<qint32>::min())
                   .arg(std::numeric_limits<qint32>::max());
        break;
    case ColumnType::Memo:
    case ColumnType::Binary:
    case ColumnType::Date:
        return {};
    }
    return QStringLiteral(" CHECK (\"%1\" IS NULL OR %2)").arg(column.name, rule);
}

/// The key clause of a column. An integer key is the row number itself, so it needs no index of its own; AUTOINCREMENT
/// keeps the number of a deleted row from being given again. A text key tells no upper from lower case.
QString KeyOf(const TableDefinition& table, const ColumnDefinition& column)
{
    const auto isKey = [&column](const IndexDefinition& index) {
        return index.kind == IndexKind::Primary && index.column == column.name;
    };
    if (std::none_of(table.indexes.begin(), table.indexes.end(), isKey)) {
        return {};
    }
    if (column.type != ColumnType::Integer) {
        return QStringLiteral(" PRIMARY KEY COLLATE NOCASE");
    }
    return column.numbering == Numbering::Auto ? QStringLiteral(" PRIMARY KEY AUTOINCREMENT")
                                               : QStringLiteral(" PRIMARY KEY");
}

} // namespace

QString DeclaredType(ColumnType type)
{
    switch (type) {
    case ColumnType::Integer:
        return QStringLiteral("INTEGER");
    case ColumnType::Text:
        return QStringLiteral("VARCHAR(%1)").arg(maxTextLength);
    case ColumnType::Memo:
        return QStringLiteral("LONGTEXT");
    case ColumnType::Binary:
        return QStringLiteral("LONGBLOB");
    case ColumnType::Date:
        return QStringLiteral("DATETIME_TEXT");
    case ColumnType::YesNo:
        return QStringLiteral("BOOLEAN");
    }
    return {};
}

QString QuotedName(const QString& name)
{
    QString quoted = name;
    return u'"' + quoted.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString CreateTableSql(const TableDefinition& table)
{
    QStringList columns;
    for (const ColumnDefinition& column : table.columns) {
        columns << QStringLiteral("\"%1\" %2%3%4")
                       .arg(column.name, DeclaredType(column.type), KeyOf(table, column), CheckOf(column));
    }
    return QStringLiteral("CREATE TABLE \"%1\" (\n  %2\n)").arg(table.name, columns.join(QStringLiteral(",\n  ")));
}

QStringList CreateIndexesSql(const TableDefinition& table)
{
    QStringList statements;
    for (const IndexDefinition& index : table.indexes) {
        if (index.kind == IndexKind::Plain) {
            const QStringList columns = QStringList(index.column) + index.carried;
            statements << QStringLiteral("CREATE INDEX \"%1_%2\" ON \"%1\" (\"%3\")")
                              .arg(table.name, index.column, columns.join(QStringLiteral("\", \"")));
        }
    }
    return statements;
}

void CreateBareTable(Connection& connection, const TableDefinition& table)
{
    connection.execute(CreateTableSql(table));
}

void CreateIndexes(Connection& connection, const TableDefinition& table)
{
    for (const QString& statement : CreateIndexesSql(table)) {
        connection.execute(statement);
    }
}

void CreateTable(Connection& connection, const TableDefinition& table)
{
    CreateBareTable(connection, table);
    CreateIndexes(connection, table);
}

void DropTable(Connection& connection, const TableDefinition& table)
{
    connection.execute(QStringLiteral("DROP TABLE IF EXISTS \"%1\"").arg(table.name));
}

} // namespace stemwright
