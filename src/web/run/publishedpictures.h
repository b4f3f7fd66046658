// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"

#include <span>
#include <string>
#include <vector>

/// Which pictures a site shows, and in which of them a person appears: all that pages besides the pictures' own ones
/// need, in memory, without the pictures' bytes. Loading fails as the engine fails. Stands on the family tree.
namespace stemwright
{

struct SiteRun;

/// The individual to whom a mark belongs. No value for a name that was typed, whose number is 0 even if the tree has an
/// individual 0, and for one whose individual is no longer in the tree.
std::optional<TreePosition> MarkedIndividual(const FamilyTree& tree, int personId);

/// A picture as lists show it; texts are UTF-8.
struct PublishedPicture {
    int id = 0;
    std::string date;
    std::string place;
    std::string title;
    /// Whether a text of the picture was left out because it names a person who is hidden.
    bool lostText = false;
};

/// The album's pictures that have picture data, in the order of their encoded dates, undated ones last, and of their
/// numbers within a date; and who is marked in them.
struct AlbumPictures {
    std::vector<PublishedPicture> pictures;

    /// Pictures by their place above, with the individuals of the tree marked in them; ordered by picture.
    struct Appearance {
        std::uint32_t picture;
        TreePosition person;
    };

    std::vector<Appearance> appearances;

    static AlbumPictures load(Connection& connection, const FamilyTree& tree);
};

class PublishedPictures
{
public:
    /// A site without pictures.
    PublishedPictures() = default;

    /// Chooses the pictures for a site whose trees are known.
    ///
    /// Where persons are hidden, a picture goes with them when it shows a hidden person and no individual who may be
    /// named: who ticks the box for his living cousins does not want their children's portraits on the web, whatever
    /// the page calls them. A picture of several generations stays, without names, marks and links of the hidden ones:
    /// it is also the picture of the others. Names that were typed count on neither side; nobody knows whose they are.
    PublishedPictures(AlbumPictures album, const SiteRun& run);

    const std::vector<PublishedPicture>& all() const { return m_pictures; }

    /// The places in all() of the pictures in which a person of the site appears, in that order, each once. Nothing for
    /// a person who is not on the site, or hidden.
    std::span<const std::uint32_t> of(TreePosition person) const
    {
        return m_pictures.empty() ? std::span<const std::uint32_t>() : m_ofPersons.of(person);
    }

private:
    std::vector<PublishedPicture> m_pictures;
    TreeLinks m_ofPersons;
};

} // namespace stemwright
