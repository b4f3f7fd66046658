// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "oldalbum/participants.h"
#include "store/engine/connection.h"

#include <QtCore/QHash>

/// The work tables in which an import collects the persons of an old album, each name once, until they are matched with
/// the individuals of the tree. Fails as the engine fails. Stands on the schema.
namespace stemwright
{

class PersonTables
{
public:
    /// Names that an earlier import left stay until the first person comes: the pictures that they stand on are not
    /// imported again. Must be called within a transaction, as must all else.
    explicit PersonTables(Connection& connection);

    /// Notes that a person stands on a picture; the first one is noted in fresh tables. Texts must fit their columns.
    void add(int pictureId, const Participant& person);

    qint64 nameCount() const { return m_ids.size(); }

private:
    int idOf(const QString& name);
    int idOfSpelling(const QString& name);

    Connection& m_connection;
    Statement m_insertName;
    Statement m_insertPlace;
    /// The names' numbers, by what makes two names the same, and by the names as they were written, which are mostly
    /// the same and quicker to find.
    QHash<QByteArray, int> m_ids;
    QHash<QString, int> m_spellings;
};

} // namespace stemwright
