// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/jet/jetpages.h"

#include <optional>
#include <vector>

/// How a table of a Jet database is built, and which pages hold its rows. Fails with Error. Stands on the pages.
namespace stemwright
{

/// The types by their numbers in the database; any other number stands for a type that is not read.
enum class JetType : quint8 {
    YesNo = 1,
    Byte = 2,
    Integer = 3,
    LongInteger = 4,
    Date = 8,
    Binary = 9,
    Text = 10,
    LongBinary = 11,
    Memo = 12
};

struct JetColumn {
    QString name;
    JetType type = JetType::Text;
    bool autoNumber = false;

    // Where a row has the value.
    /// The column's bit in the row's list of Nulls; numbers of deleted columns are not given again.
    int number = 0;
    bool fixedSize = false;
    /// For a value of fixed size: its place behind the row's head, and its length in bytes.
    int fixedPlace = 0;
    int fixedLength = 0;
    /// For any other: its number among the row's values of variable size.
    int variableNumber = 0;
};

struct JetTable {
    QString name;
    quint32 definitionPage = 0;
    /// In the order in which they were made.
    std::vector<JetColumn> columns;
    /// The number of rows that the table must have.
    qint64 rowCount = 0;
    /// The number that the last new row was given, if a column numbers rows.
    qint32 lastAutoNumber = 0;
    /// Where the map of the table's pages stands.
    JetRecordPlace pageMap;

    /// The column with this name, without regard to case, numbered from 0.
    std::optional<int> column(QStringView columnName) const;
};

/// Reads the definition of a table that begins on this page.
JetTable ReadTable(const JetPages& pages, quint32 definitionPage, const QString& name);

/// The data pages of a table, in the order in which they stand in the file. Pages that a cut-off file does not have are
/// left out; that the table lacks rows then shows in their number.
std::vector<quint32> DataPagesOf(const JetPages& pages, const JetTable& table);

} // namespace stemwright
