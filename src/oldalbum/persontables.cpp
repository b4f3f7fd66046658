// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/persontables.h"

#include "base/text.h"
#include "oldalbum/oldnames.h"
#include "store/engine/schema.h"
#include "store/engine/tablesql.h"
#include "store/tables/createtables.h"

namespace stemwright
{

namespace
{

void CreateAfresh(Connection& connection)
{
    for (const TableDefinition& table : OldAlbumTables()) {
        DropTable(connection, table);
    }
    CreatePreV2IndiTable(connection);
    CreatePreV2Pic2PersonTable(connection);
}

Connection& WithTables(Connection& connection)
{
    if (!HasOldNames(connection)) {
        CreateAfresh(connection);
    }
    return connection;
}

} // namespace

PersonTables::PersonTables(Connection& connection)
    : m_connection(WithTables(connection)),
      m_insertName(connection.prepare(QStringLiteral("INSERT INTO PreV2Indi (Name) VALUES (?1)"))),
      m_insertPlace(connection.prepare(
          QStringLiteral("INSERT INTO PreV2Pic2Person (PicId, PersId, X, Y) VALUES (?1, ?2, ?3, ?4)")))
{
}

void PersonTables::add(int pictureId, const Participant& person)
{
    if (m_ids.isEmpty()) {
        CreateAfresh(m_connection);
    }
    m_insertPlace.bind(1, pictureId).bind(2, idOf(person.name)).bind(3, person.x).bind(4, person.y).run();
}

int PersonTables::idOf(const QString& name)
{
    const auto known = m_spellings.constFind(name);
    return known != m_spellings.constEnd() ? *known : *m_spellings.insert(name, idOfSpelling(name));
}

int PersonTables::idOfSpelling(const QString& name)
{
    const QByteArray key = CollationKey(name);
    const auto known = m_ids.constFind(key);
    if (known != m_ids.constEnd()) {
        return *known;
    }
    m_insertName.bind(1, name).run();
    return *m_ids.insert(key, static_cast<int>(m_connection.lastInsertId()));
}

} // namespace stemwright
