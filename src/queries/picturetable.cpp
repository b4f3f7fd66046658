// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/picturetable.h"

#include "base/error.h"
#include "base/text.h"
#include "queries/messages.h"
#include "store/engine/engineerror.h"

#include <numeric>
#include <unordered_set>

namespace stemwright
{

namespace
{

/// The columns of a list's statement that stand before the shown ones: number and encoded date.
constexpr int firstShown = 2;

/// The numbers that the statement gives; no value without a statement.
std::optional<std::unordered_set<int>> NumbersOf(Connection& connection, const QString& jetSql)
{
    if (jetSql.isEmpty()) {
        return std::nullopt;
    }
    std::unordered_set<int> numbers;
    Statement statement = connection.prepareJet(jetSql);
    while (statement.step()) {
        numbers.insert(statement.integer(0));
    }
    return numbers;
}

QString YesNoText(std::string_view stored, const QString& yes, const QString& no)
{
    if (stored.empty()) {
        return {};
    }
    return stored == "0" ? no : yes;
}

} // namespace

void PictureTable::Cells::append(std::string_view text)
{
    m_text.append(text);
    m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
}

std::string_view PictureTable::Cells::at(std::size_t row) const
{
    const std::size_t begin = row == 0 ? 0 : m_ends[row - 1];
    return std::string_view(m_text).substr(begin, m_ends[row] - begin);
}

PictureTable::PictureTable(Connection& connection, const QString& queryName)
{
    const PicListSql sql = BuildPicListSQL(connection, queryName);
    m_queryName = sql.queryName;
    m_columns = sql.shown;
    if (m_columns.empty()) {
        throw Error(
            QStringLiteral("Query \"%1\" shows no column. Choose at least one to be displayed.").arg(m_queryName));
    }
    // Whatever the engine has to say against the query's own statement is said, although a part of it is run.
    connection.prepareJet(sql.text);
    read(connection, sql);
    unsort();
}

void PictureTable::read(Connection& connection, const PicListSql& sql)
{
    const auto ofPersons = NumbersOf(connection, sql.personText);
    m_cells.resize(m_columns.size());
    Statement statement = connection.prepareJet(sql.listText);
    while (statement.step()) {
        const int id = statement.integer(0);
        if (ofPersons && !ofPersons->contains(id)) {
            continue;
        }
        m_ids.push_back(id);
        m_encodedDates.append(statement.utf8(1));
        for (std::size_t column = 0; column < m_cells.size(); ++column) {
            m_cells[column].append(statement.utf8(firstShown + static_cast<int>(column)));
        }
    }
}

std::vector<int> PictureTable::pictureIds() const
{
    std::vector<int> ids(m_rows.size());
    std::transform(m_rows.begin(), m_rows.end(), ids.begin(), [this](std::uint32_t row) { return m_ids[row]; });
    return ids;
}

QString PictureTable::value(std::size_t row, std::size_t column) const
{
    const std::string_view stored = m_cells[column].at(m_rows[row]);
    switch (m_columns[column].value) {
    case ListValue::Time:
        return QString::fromUtf8(stored).replace(u'T', u' ');
    case ListValue::YesNo:
        return YesNoText(stored, QStringLiteral("True"), QStringLiteral("False"));
    default:
        return QString::fromUtf8(stored);
    }
}

QString PictureTable::shown(std::size_t row, std::size_t column) const
{
    if (m_columns[column].value == ListValue::YesNo) {
        return YesNoText(m_cells[column].at(m_rows[row]), QStringLiteral("Yes"), QStringLiteral("No"));
    }
    return value(row, column);
}

std::vector<QByteArray> PictureTable::sortKeys(std::size_t column) const
{
    const ListValue kind = m_columns[column].value;
    const Cells& cells = kind == ListValue::PictureDate ? m_encodedDates : m_cells[column];
    std::vector<QByteArray> keys(m_ids.size());
    for (std::size_t row = 0; row < keys.size(); ++row) {
        const std::string_view cell = cells.at(row);
        keys[row] = kind == ListValue::Text ? CollationKey(QString::fromUtf8(cell))
                                            : QByteArray(cell.data(), static_cast<qsizetype>(cell.size()));
    }
    return keys;
}

void PictureTable::sortBy(std::size_t column)
{
    const ListSort sort = SortAfterClick(m_sort, column);
    const bool again = sort.direction == Qt::DescendingOrder;
    const bool byNumber = m_columns[column].value == ListValue::Number;
    unsort();
    m_sort = sort;
    if (byNumber) {
        if (again) {
            std::reverse(m_rows.begin(), m_rows.end());
        }
        return;
    }
    const std::vector<QByteArray> keys = sortKeys(column);
    std::stable_sort(m_rows.begin(), m_rows.end(), [&keys, again](std::uint32_t first, std::uint32_t second) {
        return again ? keys[second] < keys[first] : keys[first] < keys[second];
    });
}

void PictureTable::unsort()
{
    m_sort.reset();
    m_rows.resize(m_ids.size());
    std::iota(m_rows.begin(), m_rows.end(), 0U);
    std::sort(m_rows.begin(), m_rows.end(),
              [this](std::uint32_t first, std::uint32_t second) { return m_ids[first] < m_ids[second]; });
}

std::optional<PictureTable> OpenPictureList(Connection& connection, const Environment& environment,
                                            const QString& queryName)
{
    try {
        return PictureTable(connection, QueryInUse(connection, environment, queryName).name);
    } catch (const std::exception& exception) {
        environment.talk.tell(querymessages::ListFailed(ReasonText(exception)));
        return std::nullopt;
    }
}

} // namespace stemwright
