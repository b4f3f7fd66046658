// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/jet/jetrows.h"

#include "base/error.h"
#include "store/jet/jetlongvalue.h"
#include "store/jet/jetvalues.h"

namespace stemwright
{

namespace
{

constexpr int ownerPlace = 4;
/// Each row begins with its number of columns.
constexpr int rowHeadLength = 2;
constexpr int mostMoves = 16;

} // namespace

JetRows::JetRows(const JetPages& pages, JetTable table)
    : m_pages(pages), m_table(std::move(table)), m_dataPages(DataPagesOf(pages, m_table))
{
}

bool JetRows::nextPage()
{
    while (m_nextPage < m_dataPages.size()) {
        m_page = m_pages.page(m_dataPages[m_nextPage++]);
        if (IsOfKind(m_page, JetPageKind::Data) && m_page.number32(ownerPlace) == m_table.definitionPage) {
            m_slot = 0;
            m_slots = CountRecords(m_page);
            return true;
        }
    }
    return false;
}

JetBytes JetRows::followed(JetBytes record) const
{
    for (int moves = 0; moves < mostMoves; ++moves) {
        const JetRecordPlace place = JetRecordPlace::of(record.number32(0));
        JetRecord target = ReadRecord(m_pages.page(place.page, JetPageKind::Data), place.slot);
        if (target.kind == JetRecordKind::Deleted) {
            break;
        }
        if (target.kind != JetRecordKind::Pointer) {
            return target.bytes;
        }
        record = std::move(target.bytes);
    }
    FailDamaged(QStringLiteral("a row of table %1 that was moved is not in its new place").arg(m_table.name));
}

bool JetRows::next()
{
    while (true) {
        if (m_slot == m_slots && !nextPage()) {
            break;
        }
        if (m_slot == m_slots) {
            continue;
        }
        JetRecord record = ReadRecord(m_page, m_slot++);
        if (record.kind != JetRecordKind::Whole && record.kind != JetRecordKind::Pointer) {
            continue;
        }
        m_row = record.kind == JetRecordKind::Whole ? std::move(record.bytes) : followed(std::move(record.bytes));
        m_rowColumns = m_row.number16(0);
        m_nullsLength = (m_rowColumns + 7) / 8;
        ++m_passed;
        return true;
    }
    if (m_passed != m_table.rowCount) {
        FailDamaged(QStringLiteral("table %1 should have %2 rows, but has %3")
                        .arg(m_table.name)
                        .arg(m_table.rowCount)
                        .arg(m_passed));
    }
    return false;
}

const JetColumn& JetRows::columnAt(int column) const
{
    return m_table.columns.at(static_cast<std::size_t>(column));
}

void JetRows::failType(const JetColumn& column) const
{
    throw Error(QStringLiteral("Column %1 of its table %2 is of another type than it should be.")
                    .arg(column.name, m_table.name));
}

/// The bit of a column in the list of Nulls, which ends the row. A row that is older than the column has none.
bool JetRows::hasBit(const JetColumn& column) const
{
    if (column.number >= m_rowColumns) {
        return false;
    }
    const quint8 bits = m_row.number8(m_row.size() - m_nullsLength + column.number / 8);
    return (bits >> (column.number % 8) & 1) != 0;
}

bool JetRows::hasValue(const JetColumn& column) const
{
    if (!hasBit(column)) {
        return false;
    }
    // Before the list of Nulls stands the number of values of variable size.
    return column.fixedSize || column.variableNumber < m_row.number16(m_row.size() - m_nullsLength - 2);
}

/// What the row has of a column that is not Null.
JetBytes JetRows::field(const JetColumn& column) const
{
    if (column.fixedSize) {
        return JetBytes(m_row.part(rowHeadLength + column.fixedPlace, column.fixedLength));
    }
    // The places of the values stand behind them, in reverse order, and one more for the end of the last one.
    const qint64 places = m_row.size() - m_nullsLength - 4 - 2 * qint64(column.variableNumber);
    const int begin = m_row.number16(places);
    const int end = m_row.number16(places - 2);
    return JetBytes(m_row.part(begin, end - begin));
}

bool JetRows::isNull(int column) const
{
    const JetColumn& described = columnAt(column);
    return described.type != JetType::YesNo && !hasValue(described);
}

QString JetRows::text(int column) const
{
    const JetColumn& described = columnAt(column);
    if (described.type != JetType::Text && described.type != JetType::Memo) {
        failType(described);
    }
    if (!hasValue(described)) {
        return {};
    }
    const JetBytes value = field(described);
    return DecodeJetText(described.type == JetType::Memo ? ReadLongValue(m_pages, value) : value.all());
}

int JetRows::integer(int column) const
{
    const JetColumn& described = columnAt(column);
    if (!hasValue(described)) {
        return 0;
    }
    switch (described.type) {
    case JetType::Byte:
        return field(described).number8(0);
    case JetType::Integer:
        return static_cast<qint16>(field(described).number16(0));
    case JetType::LongInteger:
        return static_cast<qint32>(field(described).number32(0));
    default:
        failType(described);
    }
}

bool JetRows::yesNo(int column) const
{
    const JetColumn& described = columnAt(column);
    if (described.type != JetType::YesNo) {
        failType(described);
    }
    return hasBit(described);
}

QString JetRows::date(int column) const
{
    const JetColumn& described = columnAt(column);
    if (described.type != JetType::Date) {
        failType(described);
    }
    return hasValue(described) ? DecodeJetDate(field(described).real(0)) : QString();
}

QByteArray JetRows::bytes(int column) const
{
    const JetColumn& described = columnAt(column);
    if (described.type != JetType::Binary && described.type != JetType::LongBinary) {
        failType(described);
    }
    if (!hasValue(described)) {
        return {};
    }
    const JetBytes value = field(described);
    QByteArray result = described.type == JetType::LongBinary ? ReadLongValue(m_pages, value) : value.all();
    return result.isNull() ? QByteArray("") : result;
}

} // namespace stemwright
