// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/oldnames.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

namespace stemwright
{

namespace
{

bool HasTables(Connection& connection)
{
    return connection.hasTable(u"PreV2Indi") && connection.hasTable(u"PreV2Pic2Person");
}

/// The names by their numbers, to find them in the list.
QHash<int, std::size_t> PositionsOf(const std::vector<OldName>& names)
{
    QHash<int, std::size_t> positions;
    for (std::size_t position = 0; position < names.size(); ++position) {
        positions.insert(names[position].id, position);
    }
    return positions;
}

/// A mark is taken for that of an old name when it has the same place; one without a place, when it has the name or
/// belongs to an individual, who may have another one.
const QString isMarked =
    QStringLiteral("EXISTS (SELECT 1 FROM Pic2Person m WHERE m.PicId = p.PicId AND m.X IS p.X AND m.Y IS p.Y "
                   "AND (p.X <> '' OR m.PersId > 0 OR m.Name = n.Name COLLATE names))");

} // namespace

std::size_t OldName::pictureCount() const
{
    QSet<int> pictures;
    for (const OldPlace& place : places) {
        pictures.insert(place.pictureId);
    }
    return static_cast<std::size_t>(pictures.size());
}

bool HasOldNames(Connection& connection)
{
    return HasTables(connection) && connection.prepare(QStringLiteral("SELECT 1 FROM PreV2Indi LIMIT 1")).step();
}

std::vector<OldName> LoadOldNames(Connection& connection)
{
    std::vector<OldName> names;
    if (!HasTables(connection)) {
        return names;
    }
    Statement name = connection.prepare(QStringLiteral("SELECT Id, Name FROM PreV2Indi ORDER BY Id"));
    while (name.step()) {
        names.push_back({name.integer(0), name.text(1), {}, false});
    }
    const QHash<int, std::size_t> positions = PositionsOf(names);
    Statement place = connection.prepare(
        QStringLiteral("SELECT p.PersId, p.PicId, p.X, p.Y, %1 FROM PreV2Pic2Person p JOIN PreV2Indi n ON n.Id = "
                       "p.PersId WHERE p.PicId IN (SELECT PicId FROM AlbumTOC) ORDER BY p.rowid")
            .arg(isMarked));
    while (place.step()) {
        OldName& owner = names[positions.value(place.integer(0))];
        owner.places.push_back({place.integer(1), place.text(2), place.text(3)});
        owner.marked = owner.marked || place.integer(4) != 0;
    }
    return names;
}

qint64 CountUnmarkedNames(Connection& connection)
{
    const std::vector<OldName> names = LoadOldNames(connection);
    return std::count_if(names.begin(), names.end(),
                         [](const OldName& name) { return !name.places.empty() && !name.marked; });
}

} // namespace stemwright
