// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/treedump.h"

namespace stemwright::test
{

namespace
{

QString DumpRow(const Statement& row)
{
    QString line;
    for (int column = 0; column < row.columnCount(); ++column) {
        if (!row.isNull(column)) {
            line += QString(" %1=[%2]").arg(row.columnName(column), row.text(column));
        }
    }
    return line.replace("\r\n", "\\r\\n") + u'\n';
}

} // namespace

QString DumpTree(Connection& connection)
{
    QString dump;
    for (const char* table : {"Indi", "Fam", "Fam2Child", "Spouse2Fam", "SchemaIndi", "SchemaFam"}) {
        dump += QString(table) + u'\n';
        Statement rows = connection.prepare(QString("SELECT * FROM %1 ORDER BY rowid").arg(table));
        while (rows.step()) {
            dump += DumpRow(rows);
        }
    }
    return dump;
}

ImportedTree::ImportedTree(QByteArray gedcom)
{
    QBuffer input(&gedcom);
    input.open(QIODevice::ReadOnly);
    duplicate = RebuildTree(input, connection, *talk.progress({}, {}), report);
    report.outcome = duplicate ? ImportOutcome::StoppedAtDuplicate : ImportOutcome::Completed;
}

} // namespace stemwright::test
