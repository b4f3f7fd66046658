// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pageassignment.h"

#include <unordered_set>

namespace stemwright
{

/// The walk itself: a stack of individuals whose families are being gone through.
class TreeWalk::Walker
{
public:
    Walker(TreeWalk& walk, const FamilyTree& tree, const Privacy& privacy, const WalkLimits& limits)
        : m_walk(walk), m_tree(tree), m_privacy(privacy), m_limits(limits)
    {
    }

    void run(TreePosition head)
    {
        enter({.person = head, .page = 0});
        while (!m_open.empty()) {
            Visit& visit = m_open.back();
            if (!visit.children.empty()) {
                const TreePosition child = visit.children.front();
                visit.children = visit.children.subspan(1);
                visitChild(visit, child);
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

    EntryNumber add(const TreeEntry& entry)
    {
        m_walk.m_entries.push_back(entry);
        return static_cast<EntryNumber>(m_walk.m_entries.size() - 1);
    }

    void enter(TreeEntry entry)
    {
        EntryNumber& main = m_walk.m_mainEntry[entry.person];
        entry.isDuplicate = main != noEntry;
        const EntryNumber number = add(entry);
        if (!entry.isDuplicate) {
            main = number;
        }
        m_open.push_back({number, nowhere, m_tree.spouseFamilies(entry.person), {}});
    }

    void visitFamily(Visit& visit, TreePosition family)
    {
        if (!m_tree.hasRecord(family)) {
            noteMissing(family);
            return;
        }
        TreeEntry& individual = m_walk.m_entries[visit.entry];
        const TreePosition spouse = m_tree.partner(family, individual.person);
        if (spouse != nowhere && m_privacy.isLeftOut(spouse)) {
            return;
        }
        ++individual.families;
        visit.family = family;
        if (!individual.isDuplicate && individual.generation < m_limits.totalGenerations) {
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

    void visitChild(const Visit& visit, TreePosition child)
    {
        if (m_privacy.isLeftOut(child)) {
            return;
        }
        const TreeEntry& parent = m_walk.m_entries[visit.entry];
        const bool parentOpensPage = parent.page == visit.entry;
        const bool staysOnPage = parent.generation % m_limits.generationsOnPage != 0 || parentOpensPage;
        // A duplicate is one line; a page of its own would take the name of the page that the main entry may own.
        const bool isDuplicate = m_walk.m_mainEntry[child] != noEntry;
        const auto ownNumber = static_cast<EntryNumber>(m_walk.m_entries.size());
        enter({.person = child,
               .family = visit.family,
               .reachedFrom = visit.entry,
               .page = staysOnPage || isDuplicate ? parent.page : ownNumber,
               .generation = parent.generation + 1});
    }

    void noteMissing(TreePosition family)
    {
        if (m_missing.insert(family).second) {
            m_walk.m_missingFamilies.push_back(family);
        }
    }

    TreeWalk& m_walk;
    const FamilyTree& m_tree;
    const Privacy& m_privacy;
    const WalkLimits& m_limits;
    std::vector<Visit> m_open;
    std::unordered_set<TreePosition> m_missing;
};

TreeWalk::TreeWalk(const FamilyTree& tree, const Privacy& privacy, TreePosition head, const WalkLimits& limits)
    : m_mainEntry(tree.individuals(), noEntry), m_firstEntry(tree.individuals(), noEntry)
{
    Walker(*this, tree, privacy, limits).run(head);
    settleSpouses();
    linkEntriesOfPersons();
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
