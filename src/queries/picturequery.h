// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "queries/listcolumns.h"
#include "store/file/namedrows.h"

#include <QtCore/QHash>

/// Picture list queries as they are read from the family file: rows of PicListQueries, found by their names. Fails as
/// the engine fails. Stands on store/file/namedrows.h.
namespace stemwright
{

/// Queries as rows that the user keeps under names.
const NamedRowKind& QueryKind();

/// The query with this name. Throws Error when there is none.
NamedRow RequireQuery(Connection& connection, const QString& name);

/// The query that is to fill the list of pictures: the one with this name; for an empty name, the one that the user ran
/// last. When the file does not have it, the user is told and the first one by name takes its place. The one that is
/// found becomes the user's default. Throws Error when the file has no queries.
NamedRow QueryInUse(Connection& connection, const Environment& environment, const QString& name);

/// The values of a query.
class PictureQuery
{
public:
    PictureQuery(Connection& connection, const NamedRow& row);

    const QString& name() const { return m_name; }

    bool yes(const QString& column) const { return number(column).value_or(0) != 0; }

    std::optional<int> number(const QString& column) const;

    /// Null is a null text. Numbers are texts as well.
    QString text(const QString& column) const { return m_values.value(column); }

    /// The columns that the list shows, in their order.
    std::vector<ListColumn> shown() const;

private:
    QString m_name;
    QHash<QString, QString> m_values;
};

} // namespace stemwright
