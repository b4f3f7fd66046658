// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/ancestorchain.h"

namespace stemwright
{

namespace
{

/// Calls `visit` for each element until it returns false.
template <class Visit>
void ForEachAncestor(const TreeWalk& walk, EntryNumber entry, Visit visit)
{
    const std::vector<TreeEntry>& entries = walk.entries();
    if (entries[entry].kind == EntryKind::Ancestor) {
        return;
    }
    const bool isSpouse = entries[entry].kind == EntryKind::Spouse;
    for (EntryNumber above = entries[entry].reachedFrom; above != noEntry; above = entries[above].reachedFrom) {
        if (!visit(entries[above].person) || isSpouse) {
            return;
        }
    }
}

} // namespace

AncestorChain AncestorChainOf(const TreeWalk& walk, EntryNumber entry)
{
    constexpr std::size_t longest = 300;
    AncestorChain chain;
    ForEachAncestor(walk, entry, [&chain](TreePosition person) {
        chain.push_back(person);
        return chain.size() < longest;
    });
    return chain;
}

std::string AncestorChainText(const TreeWalk& walk, const FamilyTree& tree, EntryNumber entry, std::size_t longest)
{
    std::string text;
    ForEachAncestor(walk, entry, [&](TreePosition person) {
        const std::string id = (text.empty() ? "" : "|") + std::to_string(tree.individualId(person));
        if (text.size() + id.size() > longest) {
            return false;
        }
        text += id;
        return true;
    });
    return text;
}

} // namespace stemwright
