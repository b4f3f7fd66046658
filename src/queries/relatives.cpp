// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/relatives.h"

namespace stemwright
{

namespace
{

/// Visits whoever `next(person, visit)` leads to, from the individual on.
template <typename Next>
void Walk(const FamilyTree& tree, int individualId, std::set<int>& ids, Next next)
{
    const std::optional<TreePosition> start = tree.findIndividual(individualId);
    if (!start) {
        return;
    }
    std::vector<bool> visited(tree.individuals(), false);
    visited[*start] = true;
    std::vector<TreePosition> waiting = {*start};
    const auto visit = [&](TreePosition person) {
        if (person != nowhere && !visited[person]) {
            visited[person] = true;
            ids.insert(tree.individualId(person));
            waiting.push_back(person);
        }
    };
    while (!waiting.empty()) {
        const TreePosition person = waiting.back();
        waiting.pop_back();
        next(person, visit);
    }
}

} // namespace

void GetAncIds(const FamilyTree& tree, int individualId, std::set<int>& ids)
{
    Walk(tree, individualId, ids, [&tree](TreePosition person, const auto& visit) {
        const TreePosition family = tree.parentFamily(person);
        if (family != nowhere) {
            visit(tree.husband(family));
            visit(tree.wife(family));
        }
    });
}

void GetDescIds(const FamilyTree& tree, int individualId, std::set<int>& ids)
{
    Walk(tree, individualId, ids, [&tree](TreePosition person, const auto& visit) {
        for (const TreePosition family : tree.spouseFamilies(person)) {
            for (const TreePosition child : tree.children(family)) {
                visit(child);
            }
        }
    });
}

} // namespace stemwright
