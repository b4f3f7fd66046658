// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "queries/picturequery.h"
#include "store/engine/schema.h"
#include "store/file/pendingchanges.h"

#include <QtCore/QStringList>

/// One picture list query while it is being edited. Each change is written to its column at once; what was not saved is
/// undone when the object goes. Procedures that return a truth value tell the user once why they did nothing, and
/// return false. Stands on picture queries, on picture dates and on store/file/pendingchanges.h.
namespace stemwright
{

class QueryEditing
{
public:
    /// Throws Error when there is no query with this name.
    QueryEditing(Connection& connection, Environment& environment, const QString& queryName);

    const QString& name() const { return m_row.name; }

    /// The columns that can be changed, in the order of the table: all but the query's name.
    static QStringList columns();

    /// Changes a column to what was typed: a yes/no value as 1, 0, yes, no, true or false; a number; a date and time as
    /// "2026-03-12" or "2026-03-12 14:05"; a picture date as typed text ("Abt. 12 Mar 1950") or encoded; IndiId as the
    /// number of an individual of the tree. An empty text is Null where the column is no yes/no value.
    bool set(const QString& column, const QString& typed);

    /// The values with all changes made so far.
    PictureQuery query() const { return {m_connection, m_row}; }

    /// The value of a column in the form in which set() takes it; empty for Null.
    QString valueText(const QString& column) const;

    /// The text of a picture date bound as the date filter shows it, for example "Aft. 1950"; empty for none.
    QString dateText(const QString& column) const;

    /// The name of the person whose pictures are listed; empty when none is chosen or the tree does not have the one.
    QString personName() const;

    /// The places that pictures have, for the place filter to offer.
    QStringList places() const;

    /// Whether a person can be chosen; false when the family file holds no individuals.
    bool hasNameIndex();

    /// Whether there are changes that were not saved.
    bool edited() const { return m_changes.any(); }

    bool save();
    /// Saves, and makes the query the user's default, which fills the list of pictures.
    bool run();
    /// Ends the editing. With unsaved changes it asks whether to lose them; false when the answer is No.
    bool close();

private:
    void write(const ColumnDefinition& column, const QString& stored);
    std::optional<QString> pickedDate(const QString& typed);
    void requirePerson(const QString& typed);

    Connection& m_connection;
    Environment& m_environment;
    NamedRow m_row;
    PendingChanges m_changes;
};

} // namespace stemwright
