// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/jet/jettable.h"

/// The rows of a table, one after the other in the order of their first places, which is mostly that in which they were
/// added. Fails with Error, also when the table turns out to have more or fewer rows than it should. Stands on the
/// table's definition.
namespace stemwright
{

class JetRows
{
public:
    /// Stands before the first row. The pages must outlive it.
    JetRows(const JetPages& pages, JetTable table);

    const JetTable& table() const { return m_table; }

    /// Goes to the next row; false when there is none.
    bool next();

    /// The number of rows that next() went to.
    qint64 passed() const { return m_passed; }

    // Values of the current row, columns numbered from 0 as in JetTable. Each is asked for by the type that its column
    // has; it is an Error to ask for another one.

    /// Yes/no is never Null.
    bool isNull(int column) const;
    /// The text of a text or memo column. A null QString for Null, an empty one for the empty string.
    QString text(int column) const;
    /// A whole number of up to 32 bits; 0 for Null.
    int integer(int column) const;
    bool yesNo(int column) const;
    /// A date as the family file stores it ("2026-03-12T14:05:00"); a null QString for Null.
    QString date(int column) const;
    /// The bytes of a binary or long binary column; a null QByteArray for Null, an empty one for a value of no bytes.
    QByteArray bytes(int column) const;

private:
    bool nextPage();
    JetBytes followed(JetBytes record) const;
    const JetColumn& columnAt(int column) const;
    [[noreturn]] void failType(const JetColumn& column) const;
    bool hasBit(const JetColumn& column) const;
    bool hasValue(const JetColumn& column) const;
    JetBytes field(const JetColumn& column) const;

    const JetPages& m_pages;
    JetTable m_table;
    std::vector<quint32> m_dataPages;
    std::size_t m_nextPage = 0;
    JetBytes m_page;
    int m_slot = 0;
    int m_slots = 0;
    qint64 m_passed = 0;

    JetBytes m_row;
    /// How many columns the table had when the row was written, and the length of its list of Nulls in bytes.
    int m_rowColumns = 0;
    int m_nullsLength = 0;
};

} // namespace stemwright
