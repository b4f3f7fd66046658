// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/pageassignment.h"

#include <unordered_set>

namespace stemwright
{

/// What both walks do with an entry.
class TreeWalk::Walker
{
public:
    Walker(TreeWalk& walk, const FamilyTree& tree, const Privacy& privacy, const WalkLimits& limits)
        : m_walk(walk), m_tree(tree), m_privacy(privacy), m_limits(limits)
    {
    }

protected:
    const TreeEntry& entryAt(EntryNumber number) const { return m_walk.m_entries[number]; }

    /// Whether the walk may go on from an entry to the next generation.
    bool goesOnFrom(const TreeEntry& entry) const
    {
        return !entry.isDuplicate && entry.generation < m_limits.totalGenerations;
    }

    EntryNumber add(const TreeEntry& entry)
    {
        m_walk.m_entries.push_back(entry);
        return static_cast<EntryNumber>(m_walk.m_entries.size() - 1);
    }

    /// Adds an entry that is the person's main one if it is the first.
    EntryNumber enter(TreeEntry entry)
    {
        EntryNumber& main = m_walk.m_mainEntry[entry.person];
        entry.isDuplicate = main != noEntry;
        const EntryNumber number = add(entry);
        if (!entry.isDuplicate) {
            main = number;
        }
        return number;
    }

    /// Enters a person of the generation after the one of `from`, on the same page or on a new one.
    EntryNumber enterNext(EntryNumber from, TreePosition family, TreePosition person, EntryKind kind)
    {
        const TreeEntry& above = entryAt(from);
        const bool staysOnPage = above.generation % m_limits.generationsOnPage != 0 || m_walk.opensPage(from);
        // A duplicate is one line; a page of its own would take the name of the page that the main entry may own.
        const bool isDuplicate = m_walk.m_mainEntry[person] != noEntry;
        const auto ownNumber = static_cast<EntryNumber>(m_walk.m_entries.size());
        return enter({.person = person,
                      .family = family,
                      .reachedFrom = from,
                      .page = staysOnPage || isDuplicate ? above.page : ownNumber,
                      .generation = above.generation + 1,
                      .kind = kind});
    }

    /// Whether the family has a record; one that has none is noted.
    bool hasRecord(TreePosition family)
    {
        if (m_tree.hasRecord(family)) {
            return true;
        }
        if (m_missing.insert(family).second) {
            m_walk.m_missingFamilies.push_back(family);
        }
        return false;
    }

    TreeWalk& m_walk;
    const FamilyTree& m_tree;
    const Privacy& m_privacy;
    const WalkLimits& m_limits;

private:
    std::unordered_set<TreePosition> m_missing;
};

/// A stack of individuals whose families are being gone through.
class TreeWalk::DescendantWalker : Walker
{
public:
    using Walker::Walker;

    void run(TreePosition head)
    {
        open(enter({.person = head, .page = 0}));
        while (!m_open.empty()) {
            Visit& visit = m_open.back();
            if (!visit.children.empty()) {
                const TreePosition child = visit.children.front();
                visit.children = visit.children.subspan(1);
                if (!m_privacy.isLeftOut(child)) {
                    open(enterNext(visit.entry, visit.family, child, EntryKind::Individual));
                }
            } else if (!visit.families.empty()) {
                const TreePosition family = visit.families.front();
                visit.families = visit.families.subspan(1);
                visitFamily(visit, family);
            } else {
                m_open.pop_back();
            }
        }
    }

private:
    struct Visit {
        EntryNumber entry;
        TreePosition family;
        std::span<const TreePosition> families;
        /// The children of `family` that are still to be visited.
        std::span<const TreePosition> children;
    };

    void open(EntryNumber entry)
    {
        m_open.push_back({entry, nowhere, m_tree.spouseFamilies(entryAt(entry).person), {}});
    }

    void visitFamily(Visit& visit, TreePosition family)
    {
        if (!hasRecord(family)) {
            return;
        }
        TreeEntry& individual = m_walk.m_entries[visit.entry];
        const TreePosition spouse = m_tree.partner(family, individual.person);
        if (spouse != nowhere && m_privacy.isLeftOut(spouse)) {
            return;
        }
        ++individual.families;
        visit.family = family;
        if (goesOnFrom(individual)) {
            visit.children = m_tree.children(family);
        }
        add({.person = spouse,
             .family = family,
             .reachedFrom = visit.entry,
             .page = individual.page,
             .families = individual.families,
             .generation = individual.generation,
             .kind = EntryKind::Spouse});
    }

    std::vector<Visit> m_open;
};

/// The entries themselves are the queue of those whose parents are still to be visited.
class TreeWalk::AncestorWalker : Walker
{
public:
    using Walker::Walker;

    void run(TreePosition head)
    {
        enter({.person = head, .page = 0, .kind = EntryKind::Ancestor});
        for (EntryNumber number = 0; number < m_walk.m_entries.size(); ++number) {
            visitParents(number);
        }
    }

private:
    void visitParents(EntryNumber number)
    {
        const TreePosition family = m_tree.parentFamily(entryAt(number).person);
        if (!goesOnFrom(entryAt(number)) || family == nowhere || !hasRecord(family)) {
            return;
        }
        for (const TreePosition parent : {m_tree.husband(family), m_tree.wife(family)}) {
            if (parent != nowhere && !m_privacy.isLeftOut(parent)) {
                enterNext(number, family, parent, EntryKind::Ancestor);
            }
        }
    }
};

TreeWalk TreeWalk::ofDescendants(const FamilyTree& tree, const Privacy& privacy, TreePosition head,
                                 const WalkLimits& limits)
{
    TreeWalk walk(tree);
    DescendantWalker(walk, tree, privacy, limits).run(head);
    walk.settleSpouses();
    walk.linkEntriesOfPersons();
    return walk;
}

TreeWalk TreeWalk::ofAncestors(const FamilyTree& tree, const Privacy& privacy, TreePosition head,
                               const WalkLimits& limits)
{
    TreeWalk walk(tree);
    AncestorWalker(walk, tree, privacy, limits).run(head);
    walk.linkEntriesOfPersons();
    return walk;
}

/// Who was met as a spouse may have been met as an individual later on, so this is known only after the walk.
void TreeWalk::settleSpouses()
{
    for (EntryNumber number = 0; number < m_entries.size(); ++number) {
        TreeEntry& entry = m_entries[number];
        if (entry.kind != EntryKind::Spouse || entry.person == nowhere) {
            continue;
        }
        EntryNumber& main = m_mainEntry[entry.person];
        entry.isDuplicate = main != noEntry;
        if (!entry.isDuplicate) {
            main = number;
        }
    }
}

void TreeWalk::linkEntriesOfPersons()
{
    for (auto number = static_cast<EntryNumber>(m_entries.size()); number-- > 0;) {
        TreeEntry& entry = m_entries[number];
        if (entry.person != nowhere) {
            entry.nextOfPerson = m_firstEntry[entry.person];
            m_firstEntry[entry.person] = number;
        }
    }
}

} // namespace stemwright
