// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/publishedpictures.h"

#include "web/run/siterun.h"

#include <unordered_map>

namespace stemwright
{

namespace
{

using Appearance = AlbumPictures::Appearance;

std::vector<TreePosition> Persons(std::span<const Appearance> appearances)
{
    std::vector<TreePosition> persons;
    persons.reserve(appearances.size());
    for (const Appearance& appearance : appearances) {
        persons.push_back(appearance.person);
    }
    return persons;
}

bool IsPublished(const std::vector<TreePosition>& persons, const SiteRun& run)
{
    const auto mayBeNamed = [&run](TreePosition person) { return run.mayBeNamed(person); };
    const auto isShownOnSite = [&run](TreePosition person) { return run.isOnSite(person) && run.mayBeNamed(person); };
    if (run.setup.picturesForThisTreeOnly) {
        return std::any_of(persons.begin(), persons.end(), isShownOnSite);
    }
    return persons.empty() || std::any_of(persons.begin(), persons.end(), mayBeNamed);
}

} // namespace

std::optional<TreePosition> MarkedIndividual(const FamilyTree& tree, int personId)
{
    return personId == 0 ? std::nullopt : tree.findIndividual(personId);
}

AlbumPictures AlbumPictures::load(Connection& connection, const FamilyTree& tree)
{
    AlbumPictures album;
    std::unordered_map<int, std::uint32_t> places;
    Statement pictures =
        connection.prepare(QStringLiteral("SELECT PicId, trim(PictureDate), trim(Place), trim(Title) FROM AlbumTOC"
                                          " WHERE Picture IS NOT NULL"
                                          " ORDER BY coalesce(EncodPicDate, '999999999'), PicId"));
    while (pictures.step()) {
        places.emplace(pictures.integer(0), static_cast<std::uint32_t>(album.pictures.size()));
        album.pictures.push_back({pictures.integer(0), std::string(pictures.utf8(1)), std::string(pictures.utf8(2)),
                                  std::string(pictures.utf8(3))});
    }
    Statement marks = connection.prepare(QStringLiteral("SELECT PicId, PersId FROM Pic2Person ORDER BY rowid"));
    while (marks.step()) {
        const auto place = places.find(marks.integer(0));
        const std::optional<TreePosition> person = MarkedIndividual(tree, marks.integer(1));
        if (place != places.end() && person) {
            album.appearances.push_back({place->second, *person});
        }
    }
    std::stable_sort(album.appearances.begin(), album.appearances.end(),
                     [](const Appearance& first, const Appearance& second) { return first.picture < second.picture; });
    return album;
}

PublishedPictures::PublishedPictures(AlbumPictures album, const SiteRun& run)
{
    if (album.pictures.empty()) {
        return;
    }
    std::vector<TreeLinks::Link> links;
    std::span<const Appearance> rest(album.appearances);
    for (std::uint32_t number = 0; number < album.pictures.size(); ++number) {
        const auto end =
            std::find_if(rest.begin(), rest.end(), [number](const Appearance& each) { return each.picture != number; });
        const auto count = static_cast<std::size_t>(end - rest.begin());
        const std::vector<TreePosition> persons = Persons(rest.first(count));
        rest = rest.subspan(count);
        if (!IsPublished(persons, run)) {
            continue;
        }
        const auto place = static_cast<std::uint32_t>(m_pictures.size());
        for (const TreePosition person : persons) {
            if (run.isOnSite(person) && run.mayBeNamed(person)) {
                links.push_back({person, place});
            }
        }
        PublishedPicture& picture = m_pictures.emplace_back(std::move(album.pictures[number]));
        for (std::string* text : {&picture.title, &picture.place}) {
            if (run.hiddenNames.isAnyNamedIn(*text, run, persons)) {
                text->clear();
                picture.lostText = true;
            }
        }
    }
    m_ofPersons = TreeLinks(run.tree.individuals(), std::move(links));
}

} // namespace stemwright
