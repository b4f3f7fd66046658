// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/oldnames.h"

#include "base/text.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

#include <map>
#include <set>
#include <tuple>

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

void LoadPlaces(Connection& connection, std::vector<OldName>& names)
{
    const QHash<int, std::size_t> positions = PositionsOf(names);
    Statement place = connection.prepare(
        QStringLiteral("SELECT p.PersId, p.PicId, p.X, p.Y FROM PreV2Pic2Person p JOIN PreV2Indi n ON n.Id = p.PersId "
                       "WHERE p.PicId IN (SELECT PicId FROM AlbumTOC) ORDER BY p.rowid"));
    while (place.step()) {
        names[positions.value(place.integer(0))].places.push_back({place.integer(1), place.text(2), place.text(3)});
    }
}

/// Tells which of the old names have their marks. A mark where an old name stands belongs to that one, and elsewhere to
/// the one whose name it has. Where several names stand at one place, or have none, there must be a mark for each of
/// them unless names tell them apart: nobody can say whose the first ones are.
class MarksOfNames
{
public:
    MarksOfNames(Connection& connection, const std::vector<OldName>& names);

    /// Whether a name is marked on all its pictures; one without pictures is not.
    bool has(const OldName& name) const;

private:
    using NameOnPicture = std::pair<int, QByteArray>;
    using Spot = std::tuple<int, QString, QString>;

    /// The names at one place, and the marks there that belong to none of them by name.
    struct Crowd {
        std::set<QByteArray> names;
        std::size_t unnamedMarks = 0;
    };

    static NameOnPicture NameAt(int pictureId, const QString& name) { return {pictureId, CollationKey(name)}; }

    static Spot SpotOf(const OldPlace& place) { return {place.pictureId, place.x, place.y}; }

    void take(const OldPlace& place, const QString& name, int personId);

    std::map<Spot, Crowd> m_crowds;
    /// All names, and whether a mark of their picture belongs to them by name.
    std::map<NameOnPicture, bool> m_isNamed;
};

MarksOfNames::MarksOfNames(Connection& connection, const std::vector<OldName>& names)
{
    for (const OldName& name : names) {
        for (const OldPlace& place : name.places) {
            m_crowds[SpotOf(place)].names.insert(CollationKey(name.name));
            m_isNamed[NameAt(place.pictureId, name.name)] = false;
        }
    }
    Statement mark = connection.prepare(QStringLiteral(
        "SELECT PicId, X, Y, Name, PersId FROM Pic2Person WHERE PicId IN (SELECT PicId FROM PreV2Pic2Person)"));
    while (mark.step()) {
        take({mark.integer(0), mark.text(1), mark.text(2)}, mark.text(3), mark.integer(4));
    }
    for (auto& [spot, crowd] : m_crowds) {
        std::erase_if(crowd.names, [this, &spot = spot](const QByteArray& name) {
            return m_isNamed.at({std::get<0>(spot), name});
        });
    }
}

void MarksOfNames::take(const OldPlace& place, const QString& name, int personId)
{
    const NameOnPicture own = NameAt(place.pictureId, name);
    const auto crowd = m_crowds.find(SpotOf(place));
    const auto named = m_isNamed.find(own);
    const bool isPlaced = !place.x.isEmpty();
    const bool isElsewhere = !isPlaced || crowd == m_crowds.end();
    if (named != m_isNamed.end() && (isElsewhere || crowd->second.names.contains(own.second))) {
        named->second = true;
    } else if (crowd != m_crowds.end() && (isPlaced || personId > 0)) {
        // A typed name without a place may be anybody's.
        ++crowd->second.unnamedMarks;
    }
}

bool MarksOfNames::has(const OldName& name) const
{
    std::set<int> marked;
    const auto isMarked = [this, &name](const OldPlace& place) {
        const Crowd& crowd = m_crowds.at(SpotOf(place));
        return m_isNamed.at(NameAt(place.pictureId, name.name)) || crowd.unnamedMarks >= crowd.names.size();
    };
    for (const OldPlace& place : name.places) {
        if (isMarked(place)) {
            marked.insert(place.pictureId);
        }
    }
    return !marked.empty() && marked.size() == name.pictureCount();
}

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
    LoadPlaces(connection, names);
    const MarksOfNames marks(connection, names);
    for (OldName& one : names) {
        one.marked = marks.has(one);
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
