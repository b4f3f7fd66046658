// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/keptrows.h"

#include "store/engine/tablesql.h"
#include "store/tables/tableshape.h"

namespace stemwright
{

KeptRows::KeptRows(Connection& connection, const QStringList& tables)
{
    for (const QString& name : tables) {
        Table table{name, {QStringLiteral("rowid")}, {}};
        for (const QString& column : ColumnsOf(connection, name)) {
            table.columns << QuotedName(column);
        }
        Statement select = connection.prepare(
            QStringLiteral("SELECT %1 FROM %2 ORDER BY rowid").arg(table.columns.join(u','), QuotedName(name)));
        while (select.step()) {
            std::vector<EngineValue>& row = table.rows.emplace_back();
            for (int column = 0; column < select.columnCount(); ++column) {
                row.push_back(select.value(column));
            }
        }
        m_tables.push_back(std::move(table));
    }
}

void KeptRows::putBack(Connection& connection) const
{
    for (const Table& table : m_tables) {
        connection.execute(QStringLiteral("DELETE FROM %1").arg(QuotedName(table.name)));
        QStringList places;
        for (int column = 1; column <= table.columns.size(); ++column) {
            places << QStringLiteral("?%1").arg(column);
        }
        Statement insert =
            connection.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                   .arg(QuotedName(table.name), table.columns.join(u','), places.join(u',')));
        for (const std::vector<EngineValue>& row : table.rows) {
            int parameter = 0;
            for (const EngineValue& value : row) {
                insert.bind(++parameter, value);
            }
            insert.run();
        }
    }
}

} // namespace stemwright
