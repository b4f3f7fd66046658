// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"
#include "web/run/privacy.h"

#include <cstdint>
#include <limits>
#include <vector>

/// Decides who is written on which page of a tree: the walks over the descendants and over the ancestors of a tree
/// head. What the pages look like is the generators'; they go through the entries in order. Nothing here fails. Stands
/// on the family tree.
namespace stemwright
{

/// The number of an entry in its tree, 0-based: the head is entry 0.
using EntryNumber = std::uint32_t;

inline constexpr EntryNumber noEntry = std::numeric_limits<EntryNumber>::max();

/// Individual: the head or a child reached by the walk. Spouse: the other one of a family of an individual. Ancestor:
/// everybody in a tree of ancestors, its head included.
enum class EntryKind : std::uint8_t { Individual, Spouse, Ancestor };

/// One place of a person in a tree.
struct TreeEntry {
    /// `nowhere` for a spouse who is not known.
    TreePosition person = nowhere;
    /// The family through which the child or the ancestor was reached, or whose spouse this is; `nowhere` for the head.
    TreePosition family = nowhere;
    /// The individual from whom the walk came: the child's parent, the spouse's partner, the ancestor's child.
    EntryNumber reachedFrom = noEntry;
    /// The entry that opens the page on which this one is written.
    EntryNumber page = noEntry;
    /// The next entry of the same person in this tree.
    EntryNumber nextOfPerson = noEntry;
    /// Of a spouse: which of the partner's families that are written this is, from 1. Of an individual: how many are.
    std::uint32_t families = 0;
    /// In the whole tree, counted from the head's, which is 1; a spouse has the partner's.
    std::int32_t generation = 1;
    EntryKind kind = EntryKind::Individual;
    /// Whether another entry of the same person is the main one, to which this one leads.
    bool isDuplicate = false;
};

struct WalkLimits {
    /// After how many generations the next ones open pages of their own.
    int generationsOnPage = std::numeric_limits<int>::max();
    int totalGenerations = std::numeric_limits<int>::max();
};

/// The entries of one tree in the order in which they are written.
///
/// Everybody has one main entry; all others are duplicates, from which the walk does not go on, which also ends it at
/// an ancestor who is his own descendant. The walks do not recurse: lines of descent may be as long as they like.
class TreeWalk
{
public:
    /// An individual, then for each family the spouse and the children, each child with all its descendants. The main
    /// entry is a person's first one as an individual, so that nobody's descendants are lost, or, for who is only ever
    /// met as a spouse, the first one as a spouse. Who is left out for privacy is left out with the children (a
    /// spouse) or with all descendants (a child).
    static TreeWalk ofDescendants(const FamilyTree& tree, const Privacy& privacy, TreePosition head,
                                  const WalkLimits& limits);

    /// Generation by generation, fathers before mothers. The main entry is a person's first one, which is the one
    /// nearest to the head, so that no limit loses anybody's ancestors. Who is left out for privacy is left out with
    /// all ancestors beyond: those of a living mother would tell her maiden name.
    static TreeWalk ofAncestors(const FamilyTree& tree, const Privacy& privacy, TreePosition head,
                                const WalkLimits& limits);

    const std::vector<TreeEntry>& entries() const { return m_entries; }

    /// `noEntry` for who is not in this tree.
    EntryNumber mainEntry(TreePosition person) const { return m_mainEntry[person]; }

    /// The first of a person's entries; the others follow by `nextOfPerson`.
    EntryNumber firstEntry(TreePosition person) const { return m_firstEntry[person]; }

    /// Whether the entry opens a page.
    bool opensPage(EntryNumber entry) const { return m_entries[entry].page == entry; }

    /// Who owns the page that holds the main entry of a person of this tree.
    TreePosition pageOwner(TreePosition person) const { return m_entries[m_entries[m_mainEntry[person]].page].person; }

    /// The families that have no record, each once, in the order in which the walk met them.
    const std::vector<TreePosition>& missingFamilies() const { return m_missingFamilies; }

private:
    class Walker;
    class DescendantWalker;
    class AncestorWalker;

    explicit TreeWalk(const FamilyTree& tree)
        : m_mainEntry(tree.individuals(), noEntry), m_firstEntry(tree.individuals(), noEntry)
    {
    }

    void settleSpouses();
    void linkEntriesOfPersons();

    std::vector<TreeEntry> m_entries;
    std::vector<EntryNumber> m_mainEntry;
    std::vector<EntryNumber> m_firstEntry;
    std::vector<TreePosition> m_missingFamilies;
};

} // namespace stemwright
