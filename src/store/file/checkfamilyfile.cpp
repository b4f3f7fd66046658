// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/checkfamilyfile.h"

#include "store/engine/schema.h"
#include "store/engine/tablesql.h"

#include <array>

namespace stemwright
{

namespace
{

enum class Severity { Fault, Note };

/// A column whose values name rows of another table. Null and 0 name none.
struct Link {
    const char* table;
    const char* column;
    const char* target;
    const char* targetColumn;
    Severity severity;
    /// What is wrong with a value that names no row, for the report.
    const char* meaning;
};

constexpr std::array<Link, 13> links = {{
    {"Pic2Person", "PicId", "AlbumTOC", "PicId", Severity::Note, "Marks stand on a picture that is gone"},
    {"TreeHeads", "SetupName", "WebSiteInfo", "SetupName", Severity::Fault, "Trees belong to a setup that is gone"},
    {"SelectedItems", "SetupName", "WebSiteInfo", "SetupName", Severity::Fault, "Items belong to a setup that is gone"},
    {"Pic2Person", "PersId", "Indi", "Id", Severity::Note, "Marks name an individual who is not in the tree"},
    {"TreeHeads", "TreeHeadId", "Indi", "Id", Severity::Note, "Trees have a head who is not in the tree"},
    {"WebAddr", "Id", "Indi", "Id", Severity::Note, "Contacts belong to an individual who is not in the tree"},
    {"Indi", "FAMC", "Fam", "Id", Severity::Note, "Individuals are children of a family that is not in the tree"},
    {"Fam", "HusbandId", "Indi", "Id", Severity::Note, "Families have a husband who is not in the tree"},
    {"Fam", "WifeId", "Indi", "Id", Severity::Note, "Families have a wife who is not in the tree"},
    {"Fam2Child", "FamId", "Fam", "Id", Severity::Note, "Children belong to a family that is not in the tree"},
    {"Fam2Child", "ChildId", "Indi", "Id", Severity::Note, "Families have a child who is not in the tree"},
    {"Spouse2Fam", "SpouseId", "Indi", "Id", Severity::Note, "Families have a spouse who is not in the tree"},
    {"Spouse2Fam", "FamId", "Fam", "Id", Severity::Note, "Individuals are spouses of a family that is not in the tree"},
}};

void CheckEngine(Connection& connection, FamilyFileReport& report)
{
    Statement statement = connection.prepare(QStringLiteral("PRAGMA integrity_check"));
    while (statement.step()) {
        if (statement.text(0) != u"ok") {
            report.faults << QStringLiteral("The file is damaged: %1.").arg(statement.text(0));
        }
    }
}

void CheckSchema(Connection& connection, FamilyFileReport& report)
{
    Statement find = connection.prepare(QStringLiteral("SELECT 1 FROM sqlite_master WHERE sql = ?1"));
    const auto stands = [&find](const QString& sql) {
        const bool found = find.bind(1, sql).step();
        find.reset();
        return found;
    };
    for (const TableDefinition& table : FamilyFileTables()) {
        if (!stands(CreateTableSql(table))) {
            report.faults << QStringLiteral("Table %1 is not built as this release builds it.").arg(table.name);
        }
        for (const QString& index : CreateIndexesSql(table)) {
            if (!stands(index)) {
                report.faults << QStringLiteral("An index of table %1 is missing.").arg(table.name);
            }
        }
    }
    if (const qint64 rows = connection.countRows(QStringLiteral("GenInfo")); rows != 1) {
        report.faults << QStringLiteral("Table GenInfo has %1 rows instead of one.").arg(rows);
    }
}

void CheckLink(Connection& connection, const Link& link, FamilyFileReport& report)
{
    const QString names =
        FindColumn(TableNamed(QString::fromLatin1(link.table)), QString::fromLatin1(link.column))->type ==
                ColumnType::Text
            ? QStringLiteral(" COLLATE names")
            : QString();
    Statement statement = connection.prepare(
        QStringLiteral(
            "SELECT count(*), min(\"%2\") FROM \"%1\" AS link WHERE link.\"%2\" IS NOT NULL AND link.\"%2\" <> 0"
            " AND NOT EXISTS (SELECT 1 FROM \"%3\" AS target WHERE target.\"%4\" = link.\"%2\"%5)")
            .arg(QString::fromLatin1(link.table), QString::fromLatin1(link.column), QString::fromLatin1(link.target),
                 QString::fromLatin1(link.targetColumn), names));
    statement.step();
    if (statement.integer64(0) == 0) {
        return;
    }
    QStringList& list = link.severity == Severity::Fault ? report.faults : report.notes;
    list << QStringLiteral("%1: %2 (%3.%4, for example %5).")
                .arg(QString::fromLatin1(link.meaning), QString::number(statement.integer64(0)),
                     QString::fromLatin1(link.table), QString::fromLatin1(link.column), statement.text(1));
}

} // namespace

FamilyFileReport CheckFamilyFile(Connection& connection)
{
    FamilyFileReport report;
    CheckEngine(connection, report);
    CheckSchema(connection, report);
    for (const Link& link : links) {
        CheckLink(connection, link, report);
    }
    return report;
}

} // namespace stemwright
