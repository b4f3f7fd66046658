// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/upgrade/currentfile.h"

#include "base/error.h"
#include "store/engine/tablesql.h"
#include "store/tables/tableshape.h"
#include "store/upgrade/messages.h"
#include "store/upgrade/tablechanges.h"
#include "store/upgrade/upgradesteps.h"

namespace stemwright
{

namespace
{

/// All tables of a family file; those of an old album only where they are there. `database` is the name by which the
/// connection calls the prepared file.
std::vector<TableDefinition> TablesToWrite(Connection& connection, const QString& database)
{
    std::vector<TableDefinition> tables = FamilyFileTables();
    Statement find = connection.prepare(
        QStringLiteral("SELECT 1 FROM %1.sqlite_master WHERE name = ?1 COLLATE NOCASE").arg(database));
    for (const TableDefinition& table : OldAlbumTables()) {
        const bool found = find.bind(1, table.name).step();
        find.reset();
        if (found) {
            tables.push_back(table);
        }
    }
    return tables;
}

QString TooLong(const QString& column)
{
    return QStringLiteral("length(%1) > %2").arg(column).arg(maxTextLength);
}

void NoteForeignColumns(Connection& work, const TableDefinition& table, QStringList& leftBehind)
{
    for (const QString& column : ColumnsOf(work, table.name)) {
        if (FindColumn(table, column) == nullptr) {
            Statement any = work.prepare(QStringLiteral("SELECT 1 FROM %1 WHERE %2 IS NOT NULL LIMIT 1")
                                             .arg(QuotedName(table.name), QuotedName(column)));
            if (any.step()) {
                leftBehind << QStringLiteral("column %1 of table %2").arg(column, table.name);
            }
        }
    }
}

void NoteLongTexts(Connection& work, const TableDefinition& table, QStringList& leftBehind)
{
    QStringList columns;
    QStringList counts;
    for (const ColumnDefinition& column : table.columns) {
        if (column.type == ColumnType::Text) {
            columns << column.name;
            counts << QStringLiteral("sum(%1)").arg(TooLong(QuotedName(column.name)));
        }
    }
    if (columns.isEmpty()) {
        return;
    }
    Statement select = work.prepare(
        QStringLiteral("SELECT %1 FROM %2").arg(counts.join(QStringLiteral(", ")), QuotedName(table.name)));
    select.step();
    for (int i = 0; i < columns.size(); ++i) {
        if (select.integer64(i) > 0) {
            leftBehind << QStringLiteral("the ends of long texts in column %1 of table %2 (%3)")
                              .arg(columns[i], table.name)
                              .arg(select.integer64(i));
        }
    }
}

/// A column's value as the new table takes it.
QString Taken(const ColumnDefinition& column)
{
    const QString name = QuotedName(column.name);
    if (column.type == ColumnType::YesNo) {
        return QStringLiteral("CASE WHEN %1 IS NULL THEN NULL WHEN %1 THEN -1 ELSE 0 END").arg(name);
    }
    if (column.type != ColumnType::Text) {
        return name;
    }
    const QString text =
        QStringLiteral("CASE WHEN %1 THEN substr(%2, 1, %3) ELSE %2 END").arg(TooLong(name), name).arg(maxTextLength);
    return column.zeroLength == ZeroLength::Allowed ? text : QStringLiteral("nullif(%1, '')").arg(text);
}

/// Whether a column of the table is the row number itself.
bool IsNumbered(const TableDefinition& table)
{
    return std::any_of(table.indexes.begin(), table.indexes.end(), [&table](const IndexDefinition& index) {
        return index.kind == IndexKind::Primary && FindColumn(table, index.column)->type == ColumnType::Integer;
    });
}

/// Rows keep their numbers, by which they are found again when the new file is looked over.
void CopyRows(Connection& current, const TableDefinition& table)
{
    QStringList names;
    QStringList values;
    if (!IsNumbered(table)) {
        names << QStringLiteral("rowid");
        values << QStringLiteral("rowid");
    }
    for (const ColumnDefinition& column : table.columns) {
        names << QuotedName(column.name);
        values << Taken(column);
    }
    const QString separator = QStringLiteral(", ");
    current.execute(QStringLiteral("INSERT INTO main.%1 (%2) SELECT %3 FROM prepared.%1 ORDER BY rowid")
                        .arg(QuotedName(table.name), names.join(separator), values.join(separator)));
}

void ContinueNumbers(Connection& current)
{
    if (!current.prepare(QStringLiteral("SELECT 1 FROM prepared.sqlite_master WHERE name = 'sqlite_sequence'"))
             .step()) {
        return;
    }
    current.execute(QStringLiteral(
        "INSERT INTO main.sqlite_sequence (name, seq) SELECT name, 0 FROM prepared.sqlite_sequence AS old WHERE EXISTS"
        " (SELECT 1 FROM main.sqlite_master WHERE name = old.name AND sql LIKE '%AUTOINCREMENT%') AND NOT EXISTS"
        " (SELECT 1 FROM main.sqlite_sequence WHERE name = old.name);"
        "UPDATE main.sqlite_sequence AS new SET seq = max(seq, coalesce("
        " (SELECT seq FROM prepared.sqlite_sequence AS old WHERE old.name = new.name), 0))"));
}

qint64 NumberOf(Connection& connection, const QString& sql)
{
    Statement statement = connection.prepare(sql);
    statement.step();
    return statement.integer64(0);
}

void Verify(Connection& current, const TableDefinition& table)
{
    const QString name = QuotedName(table.name);
    const QString count = QStringLiteral("SELECT count(*) FROM %1.%2");
    bool whole = NumberOf(current, count.arg(QStringLiteral("main"), name)) ==
                 NumberOf(current, count.arg(QStringLiteral("prepared"), name));
    for (const ColumnDefinition& column : table.columns) {
        if (column.type == ColumnType::Binary) {
            whole =
                whole && NumberOf(current, QStringLiteral("SELECT count(*) FROM main.%1 AS new JOIN prepared.%1 AS old"
                                                          " ON new.rowid = old.rowid WHERE new.%2 IS NOT old.%2")
                                               .arg(name, QuotedName(column.name))) == 0;
        }
    }
    if (!whole) {
        FailNotWhole(table.name);
    }
}

void RequireSound(Connection& current)
{
    Statement check = current.prepare(QStringLiteral("PRAGMA quick_check(1)"));
    check.step();
    if (check.text(0) != u"ok") {
        throw Error(QStringLiteral("The new file is not sound (%1). Please try again; if that does not help, the disk "
                                   "may be failing.")
                        .arg(check.text(0)));
    }
}

void CopyTables(Connection& current, Talk& talk)
{
    const std::vector<TableDefinition> tables = TablesToWrite(current, QStringLiteral("prepared"));
    const auto progress = talk.progress(upgrademessages::upgrading, upgrademessages::writingFile);
    Transaction transaction(current);
    for (std::size_t done = 0; done < tables.size(); ++done) {
        progress->setPercent(static_cast<int>(100 * done / tables.size()));
        StopWhenWished(*progress);
        CreateBareTable(current, tables[done]);
        CopyRows(current, tables[done]);
        CreateIndexes(current, tables[done]);
        Verify(current, tables[done]);
    }
    ContinueNumbers(current);
    transaction.commit();
    progress->setPercent(100);
}

} // namespace

QStringList PrepareForCurrentFile(Connection& work)
{
    QStringList leftBehind;
    for (const char* filledWhenNeeded : {"Indi2Page", "UniqueIds"}) {
        const TableDefinition& table = TableNamed(QString::fromLatin1(filledWhenNeeded));
        if (!work.hasTable(table.name)) {
            CreateTable(work, table);
        }
    }
    for (const TableDefinition& table : TablesToWrite(work, QStringLiteral("main"))) {
        RequireTable(work, table);
        NoteForeignColumns(work, table, leftBehind);
        NoteLongTexts(work, table, leftBehind);
    }
    return leftBehind;
}

void WriteCurrentFile(const QString& path, const QString& preparedFile, Talk& talk)
{
    Connection current(path, OpenMode::CreateNew);
    WriteUnguarded(current);
    Statement attach = current.prepare(QStringLiteral("ATTACH ?1 AS prepared"));
    attach.bind(1, preparedFile).run();
    CopyTables(current, talk);
    RequireSound(current);
}

} // namespace stemwright
