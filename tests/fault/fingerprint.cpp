// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "fault/fingerprint.h"

#include <QtCore/QCryptographicHash>

#include <SQLiteCpp/SQLiteCpp.h>

namespace stemwright::test
{

namespace
{

/// Adds every value of a query's rows, with its type and length, and returns the number of rows.
int AddRows(QCryptographicHash& hash, const SQLite::Database& database, const std::string& sql)
{
    int rows = 0;
    SQLite::Statement statement(database, sql);
    for (; statement.executeStep(); ++rows) {
        for (int index = 0; index < statement.getColumnCount(); ++index) {
            const SQLite::Column column = statement.getColumn(index);
            hash.addData(QByteArray::number(column.getType()) + ':' + QByteArray::number(column.getBytes()) + ':');
            hash.addData({static_cast<const char*>(column.getBlob()), column.getBytes()});
        }
    }
    return rows;
}

} // namespace

QString Fingerprint(const QString& path)
{
    const SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    const std::string kept = "tbl_name NOT IN ('Indi2Page', 'UniqueIds', 'sqlite_sequence')";
    QCryptographicHash hash(QCryptographicHash::Sha256);
    AddRows(hash, database, "SELECT name, sql FROM sqlite_master WHERE " + kept + " ORDER BY name");
    SQLite::Statement tables(database, "SELECT name, (SELECT group_concat('\"' || name || '\"') FROM "
                                       "pragma_table_info(t.name) WHERE name <> 'ImportDate') "
                                       "FROM sqlite_master t WHERE type = 'table' AND " +
                                           kept + " ORDER BY name");
    int rows = 0;
    while (tables.executeStep()) {
        const std::string name = tables.getColumn(0).getString();
        rows += AddRows(hash, database,
                        "SELECT " + tables.getColumn(1).getString() + " FROM \"" + name + "\" ORDER BY rowid");
    }
    return QString("%1 rows, %2").arg(rows).arg(QString::fromLatin1(hash.result().toHex().left(16)));
}

} // namespace stemwright::test
