// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/queryediting.h"

#include "base/error.h"
#include "dates/datepicker.h"
#include "index/fullname.h"
#include "queries/messages.h"
#include "store/engine/engineerror.h"
#include "store/engine/jetdates.h"
#include "store/file/typedvalues.h"

#include <QtCore/QRegularExpression>

#include <limits>

namespace stemwright
{

namespace
{

const QString personColumn = QStringLiteral("IndiId");

bool IsPictureDate(const QString& column)
{
    return column == u"PicDateFrom" || column == u"PicDateTo";
}

/// Throws Error, which lists the columns, when a query has no such column that can be changed.
const ColumnDefinition& ColumnNamed(const QString& name)
{
    const ColumnDefinition* column = FindColumn(TableNamed(QueryKind().table), name);
    if (column == nullptr || column->name == QueryKind().nameColumn) {
        throw Error(QStringLiteral("A query has no column named \"%1\" that can be set. Its columns are %2.")
                        .arg(name, QueryEditing::columns().join(QStringLiteral(", "))));
    }
    return *column;
}

QString StoredTime(const QString& column, const QString& typed)
{
    try {
        return jet::IsoDate(typed);
    } catch (const Error&) {
        throw Error(
            QStringLiteral("%1 must be a date such as 2026-03-12 or 2026-03-12 14:05, not \"%2\".").arg(column, typed));
    }
}

/// A stored time as one would type it.
QString TypedTime(QString stored)
{
    static const QString midnight = QStringLiteral("T00:00:00");
    return stored.endsWith(midnight) ? stored.chopped(midnight.size()) : stored.replace(u'T', u' ');
}

/// What the column stores for a typed text, Null as a null text.
QString StoredValue(const ColumnDefinition& column, const QString& typed)
{
    if (column.type == ColumnType::YesNo) {
        return ParseTypedYesNo(column.name, typed) ? QStringLiteral("-1") : QStringLiteral("0");
    }
    if (typed.isEmpty()) {
        return {};
    }
    switch (column.type) {
    case ColumnType::Integer:
        return QString::number(
            ParseTypedNumber(column.name, typed, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    case ColumnType::Date:
        return StoredTime(column.name, typed);
    default:
        return ParseTypedText(column.name, typed);
    }
}

} // namespace

QueryEditing::QueryEditing(Connection& connection, Environment& environment, const QString& queryName)
    : m_connection(connection), m_environment(environment), m_row(RequireQuery(connection, queryName)),
      m_changes(connection, {QueryKind().table})
{
}

QStringList QueryEditing::columns()
{
    QStringList names;
    for (const ColumnDefinition& column : TableNamed(QueryKind().table).columns) {
        names << column.name;
    }
    names.removeOne(QueryKind().nameColumn);
    return names;
}

bool QueryEditing::set(const QString& columnName, const QString& typed)
{
    try {
        const ColumnDefinition& column = ColumnNamed(columnName);
        if (IsPictureDate(column.name)) {
            const std::optional<QString> encoded = pickedDate(typed);
            if (encoded) {
                write(column, *encoded);
            }
            return encoded.has_value();
        }
        if (column.name == personColumn && !typed.isEmpty()) {
            if (!hasNameIndex()) {
                return false;
            }
            requirePerson(typed);
        }
        write(column, StoredValue(column, typed));
        return true;
    } catch (const std::exception& exception) {
        m_environment.talk.tell(querymessages::QueryFailed(ReasonText(exception)));
        return false;
    }
}

void QueryEditing::write(const ColumnDefinition& column, const QString& stored)
{
    Statement statement =
        m_connection.prepare(QStringLiteral("UPDATE PicListQueries SET \"%1\" = ?1 WHERE rowid = ?2").arg(column.name));
    statement.bind(1, stored).bind(2, m_row.row);
    m_changes.make([&statement] { statement.run(); });
}

/// The encoded form of a picture date bound, a null text for none; no value after the user was told what is wrong.
std::optional<QString> QueryEditing::pickedDate(const QString& typed)
{
    static const QRegularExpression encodedForm(
        QStringLiteral(R"(^\s*(\d{4}(?:0\d|1[0-2]|99(?=..9))(?:[0-2]\d|3[01]|99(?=9))[0129])\s*$)"));
    DatePicker picker;
    const QRegularExpressionMatch encoded = encodedForm.match(typed);
    if (encoded.hasMatch()) {
        picker.ShowEncodedDate(encoded.captured(1), m_environment.talk);
    }
    const std::optional<PickedDate> date =
        encoded.hasMatch() ? picker.accept(m_environment.talk) : PickTypedDate(typed, m_environment.talk);
    if (!date) {
        return std::nullopt;
    }
    return date->encoded == noEncodedDate ? QString() : date->encoded;
}

void QueryEditing::requirePerson(const QString& typed)
{
    const int id =
        ParseTypedNumber(personColumn, typed, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (!FullNameOf(m_connection, id)) {
        throw Error(QStringLiteral("The family tree has no individual with the ID %1.").arg(id));
    }
}

QString QueryEditing::valueText(const QString& columnName) const
{
    const ColumnDefinition& column = ColumnNamed(columnName);
    const PictureQuery values = query();
    if (column.type == ColumnType::YesNo) {
        return values.yes(column.name) ? QStringLiteral("1") : QStringLiteral("0");
    }
    return column.type == ColumnType::Date ? TypedTime(values.text(column.name)) : values.text(column.name);
}

QString QueryEditing::dateText(const QString& columnName) const
{
    const QString encoded = valueText(columnName);
    return encoded.isEmpty() ? QString() : EncodedDateToText(encoded, m_environment.talk);
}

QString QueryEditing::personName() const
{
    const std::optional<int> id = query().number(personColumn);
    return id ? FullNameOf(m_connection, *id).value_or(QString()) : QString();
}

QStringList QueryEditing::places() const
{
    Statement statement =
        m_connection.prepareJet(QStringLiteral("SELECT Place FROM AlbumTOC GROUP BY Place ORDER BY Place"));
    QStringList places;
    while (statement.step()) {
        if (!statement.isNull(0)) {
            places << statement.text(0);
        }
    }
    return places;
}

bool QueryEditing::hasNameIndex()
{
    const bool anybody = HasIndividuals(m_connection);
    if (!anybody) {
        m_environment.talk.tell(querymessages::NoNameIndex());
    }
    return anybody;
}

bool QueryEditing::save()
{
    return m_changes.save(m_environment.talk, querymessages::QueryFailed);
}

bool QueryEditing::run()
{
    if (!save()) {
        return false;
    }
    m_environment.settings.setValue(setting::picListQueries, setting::defaultPicListQuery, m_row.name);
    return true;
}

bool QueryEditing::close()
{
    return !edited() || m_changes.cancel(m_environment.talk, querymessages::LoseChanges());
}

} // namespace stemwright
