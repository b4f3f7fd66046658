// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/picturequery.h"

#include "base/error.h"
#include "queries/messages.h"
#include "store/engine/schema.h"
#include "store/tables/defaultrows.h"

namespace stemwright
{

const NamedRowKind& QueryKind()
{
    static const NamedRowKind kind = {QStringLiteral("picture list query"), QStringLiteral("PicListQueries"),
                                      QStringLiteral("QueryName"), maxTextLength};
    return kind;
}

NamedRow RequireQuery(Connection& connection, const QString& name)
{
    return RequireNamedRow(connection, QueryKind(), name);
}

NamedRow QueryInUse(Connection& connection, const Environment& environment, const QString& name)
{
    QString wanted =
        name.isEmpty() ? environment.settings.value(setting::picListQueries, setting::defaultPicListQuery) : name;
    if (wanted.isEmpty()) {
        wanted = initialQueryName;
    }
    std::optional<NamedRow> query = FindNamedRow(connection, QueryKind(), wanted);
    if (!query) {
        Statement first = connection.prepareJet(QStringLiteral("SELECT * FROM PicListQueries ORDER BY QueryName"));
        if (!first.step()) {
            throw Error(QStringLiteral("The family file has no picture list query. Make a new one to list pictures."));
        }
        query = RequireQuery(connection, first.text(first.column(u"QueryName")));
        environment.talk.tell(querymessages::CannotFindQuery(wanted, query->name));
    }
    environment.settings.setValue(setting::picListQueries, setting::defaultPicListQuery, query->name);
    return *query;
}

PictureQuery::PictureQuery(Connection& connection, const NamedRow& row) : m_name(row.name)
{
    Statement values = connection.prepare(QStringLiteral("SELECT * FROM PicListQueries WHERE rowid = ?1"));
    values.bind(1, row.row).step();
    for (int column = 0; column < values.columnCount(); ++column) {
        m_values.insert(values.columnName(column), values.text(column));
    }
}

std::optional<int> PictureQuery::number(const QString& column) const
{
    const QString value = text(column);
    return value.isNull() ? std::nullopt : std::optional(value.toInt());
}

std::vector<ListColumn> PictureQuery::shown() const
{
    std::vector<ListColumn> columns;
    for (const ListColumn& column : ListColumns()) {
        if (yes(column.key + QStringLiteral("Show"))) {
            columns.push_back(column);
        }
    }
    return columns;
}

} // namespace stemwright
