// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/recognise.h"

#include "base/error.h"
#include "base/files.h"
#include "store/engine/leftjournal.h"
#include "store/engine/tablesql.h"
#include "store/jet/jetfile.h"
#include "store/tables/tableshape.h"
#include "store/upgrade/upgradesteps.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

const QString openACopy = QStringLiteral("Please copy the file into a folder of your own and open the copy.");

[[noreturn]] void Refuse(const QString& reason)
{
    throw Error(reason);
}

FileFormat FormatOf(const QString& path)
{
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(32) : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        Refuse(QStringLiteral("It cannot be read: %1.").arg(file.errorString()));
    }
    if (head.isEmpty()) {
        Refuse(QStringLiteral("The file is empty."));
    }
    if (IsJetContent(head)) {
        return FileFormat::Jet;
    }
    if (!head.startsWith(QByteArray("SQLite format 3\0", 16))) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    return FileFormat::Engine;
}

/// Whether something of the file's schema is a part of a family file, or of the engine's own bookkeeping. The indexes
/// of earlier releases were others, and are not used.
bool BelongsToFamilyFile(const QString& type, const QString& name, const QString& table, const QString& sql)
{
    const TableDefinition* definition = FindTable(table);
    if (type == u"table") {
        const bool bookkeeping = name == u"sqlite_sequence" || name == u"sqlite_stat1" || name == u"sqlite_stat4";
        return bookkeeping || (definition != nullptr && sql.startsWith(QStringLiteral("CREATE TABLE ")));
    }
    return type == u"index" && definition != nullptr;
}

/// Whether an index is one that the engine made for a key, or that this release makes.
bool IsCurrentIndex(const QString& name, const QString& table, const QString& sql)
{
    const bool automatic = sql.isNull() && name.startsWith(QStringLiteral("sqlite_autoindex_"));
    return automatic || CreateIndexesSql(TableNamed(table)).contains(sql);
}

enum class Indexes { Any, Current };

void RequireNothingElse(Connection& connection, Indexes indexes)
{
    Statement object = connection.prepare(QStringLiteral("SELECT type, name, tbl_name, sql FROM sqlite_master"));
    while (object.step()) {
        const QString type = object.text(0);
        const QString name = object.text(1);
        const QString table = object.text(2);
        const QString sql = object.text(3);
        if (!BelongsToFamilyFile(type, name, table, sql) ||
            (indexes == Indexes::Current && type == u"index" && !IsCurrentIndex(name, table, sql))) {
            Refuse(QStringLiteral("It holds a thing that no family file has, the %1 \"%2\".").arg(type, name));
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

QString StatedVersion(Connection& connection)
{
    if (!ColumnsOf(connection, QStringLiteral("GenInfo"))
             .contains(QStringLiteral("StemoraVersion"), Qt::CaseInsensitive)) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    Statement version = connection.prepare(QStringLiteral("SELECT StemoraVersion FROM GenInfo ORDER BY rowid LIMIT 1"));
    if (!version.step()) {
        Refuse(QStringLiteral("It is not a whole family file: its table GenInfo has no row."));
    }
    if (version.isNull(0)) {
        Refuse(QStringLiteral("It does not say which version of Stemwright made it."));
    }
    return version.text(0);
}

} // namespace

FileFormat RecogniseFormat(const QString& path)
{
    const QFileInfo info(path);
    RequireUsablePath(FileItself(path));
    if (!info.exists()) {
        Refuse(QStringLiteral("There is no such file."));
    }
    if (info.isDir()) {
        Refuse(QStringLiteral("It is a folder."));
    }
    if (!info.isFile()) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    const FileFormat format = FormatOf(path);
    if (!info.isWritable()) {
        Refuse(QStringLiteral("The file is write-protected. ") + openACopy);
    }
    if (!QFileInfo(info.absolutePath()).isWritable()) {
        Refuse(
            QStringLiteral("Its folder, %1, is write-protected. ").arg(QDir::toNativeSeparators(info.absolutePath())) +
            openACopy);
    }
    return format;
}

QString RequireFamilyFile(Connection& connection)
{
    if (!connection.hasTable(u"GenInfo")) {
        Refuse(QStringLiteral("It is not a family file."));
    }
    RequireNothingElse(connection, Indexes::Any);
    const QString version = StatedVersion(connection);
    connection.keepInOneFile();
    RequireWholeLength(connection);
    if (NeedsUpgrade(version)) {
        for (const QString& table : TablesOfVersion(version)) {
            if (!connection.hasTable(table)) {
                RefuseWithoutTable(table);
            }
        }
        return version;
    }
    RequireNothingElse(connection, Indexes::Current);
    RequireTables(connection);
    return version;
}

} // namespace stemwright
