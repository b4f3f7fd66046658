// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/recognise.h"

#include "base/error.h"
#include "store/engine/schema.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

namespace stemwright
{

namespace
{

/// Files whose version sorts before this one need an upgrade.
const QString oldestCurrentVersion = QStringLiteral("2.2.9940");

[[noreturn]] void Refuse(const QString& reason)
{
    throw Error(reason);
}

[[noreturn]] void RefuseEarlierRelease()
{
    Refuse(QStringLiteral("It was made by an earlier release of Stemwright, and this version cannot upgrade it yet."));
}

void RequireContentOfEngine(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Refuse(QStringLiteral("It cannot be read: %1.").arg(file.errorString()));
    }
    const QByteArray head = file.read(32);
    if (head.isEmpty()) {
        Refuse(QStringLiteral("The file is empty."));
    }
    if (head.mid(4).startsWith("Standard Jet DB") || head.mid(4).startsWith("Standard ACE DB")) {
        RefuseEarlierRelease();
    }
    if (!head.startsWith(QByteArray("SQLite format 3\0", 16))) {
        Refuse(QStringLiteral("It is not a family file."));
    }
}

/// Whether something of the file's schema is a part of a family file, or of the engine's own bookkeeping.
bool BelongsToFamilyFile(const QString& type, const QString& name, const QString& table, const QString& sql)
{
    const TableDefinition* definition = FindTable(table);
    if (type == u"table") {
        const bool bookkeeping = name == u"sqlite_sequence" || name == u"sqlite_stat1" || name == u"sqlite_stat4";
        return bookkeeping || (definition != nullptr && sql.startsWith(QStringLiteral("CREATE TABLE ")));
    }
    const bool automatic = sql.isNull() && name.startsWith(QStringLiteral("sqlite_autoindex_"));
    return type == u"index" && definition != nullptr && (automatic || CreateIndexesSql(*definition).contains(sql));
}

void RequireNothingElse(Connection& connection)
{
    Statement object = connection.prepare(QStringLiteral("SELECT type, name, tbl_name, sql FROM sqlite_master"));
    while (object.step()) {
        if (!BelongsToFamilyFile(object.text(0), object.text(1), object.text(2), object.text(3))) {
            Refuse(QStringLiteral("It holds a thing that no family file has, the %1 \"%2\".")
                       .arg(object.text(0), object.text(1)));
        }
    }
}

/// The engine fills up a last page that was cut off with zeros; it only notices when whole pages are missing.
void RequireWholeLength(Connection& connection)
{
    Statement length =
        connection.prepare(QStringLiteral("SELECT page_count * page_size FROM pragma_page_count, pragma_page_size"));
    length.step();
    if (QFileInfo(connection.path()).size() < length.integer64(0)) {
        Refuse(QStringLiteral("The file is damaged: its end is missing."));
    }
}

QStringList ColumnsOf(Connection& connection, const QString& table)
{
    QStringList names;
    Statement column = connection.prepare(QStringLiteral("SELECT name, hidden FROM pragma_table_xinfo(?1)"));
    column.bind(1, table);
    while (column.step()) {
        if (column.integer(1) != 0) {
            Refuse(QStringLiteral("Its table %1 computes the column %2, which no family file does.")
                       .arg(table, column.text(0)));
        }
        names << column.text(0);
    }
    return names;
}

void RequireTables(Connection& connection)
{
    for (const TableDefinition& table : FamilyFileTables()) {
        const QStringList columns = ColumnsOf(connection, table.name);
        if (columns.isEmpty()) {
            Refuse(QStringLiteral("It is not a family file, or not a whole one: it has no table %1.").arg(table.name));
        }
        for (const ColumnDefinition& column : table.columns) {
            if (!columns.contains(column.name, Qt::CaseInsensitive)) {
                Refuse(QStringLiteral("It is not a whole family file: its table %1 has no column %2.")
                           .arg(table.name, column.name));
            }
        }
    }
}

} // namespace

void RequireEngineFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        Refuse(QStringLiteral("There is no such file."));
    }
    if (info.isDir()) {
        Refuse(QStringLiteral("It is a folder."));
    }
    if (!info.isFile()) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    RequireContentOfEngine(path);
    if (!info.isWritable()) {
        Refuse(QStringLiteral("The file is write-protected."));
    }
    if (!QFileInfo(info.absolutePath()).isWritable()) {
        Refuse(
            QStringLiteral("Its folder, %1, is write-protected.").arg(QDir::toNativeSeparators(info.absolutePath())));
    }
}

void RequireFamilyFile(Connection& connection)
{
    RequireWholeLength(connection);
    if (!connection.hasTable(u"GenInfo")) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    RequireNothingElse(connection);
    if (!ColumnsOf(connection, QStringLiteral("GenInfo")).contains(QStringLiteral("StemoraVersion"))) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    Statement version = connection.prepare(QStringLiteral("SELECT StemoraVersion FROM GenInfo ORDER BY rowid LIMIT 1"));
    if (!version.step()) {
        Refuse(QStringLiteral("It is not a whole family file: its table GenInfo has no row."));
    }
    if (version.text(0).compare(oldestCurrentVersion, Qt::CaseInsensitive) < 0) {
        RefuseEarlierRelease();
    }
    RequireTables(connection);
}

} // namespace stemwright
