// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/pageassignment.h"

namespace stemwright
{

/// The individuals through whom the walk reached an entry, from the nearest: element 0 is the parent (or, for a spouse,
/// the partner), the last one is the tree head. The head's own chain is empty, and so are those of a tree of ancestors,
/// where nobody descends from the head.
using AncestorChain = std::vector<TreePosition>;

/// The chain of an entry, no longer than the nearest few hundred, so that pages stay readable and do not grow with the
/// square of a very long line of descent. Only individuals have ancestors in the tree: a spouse's chain ends with the
/// partner.
AncestorChain AncestorChainOf(const TreeWalk& walk, EntryNumber entry);

/// The chain as Indi2Page keeps it, the ids joined by "|", cut after the last one that fits into `longest` characters.
std::string AncestorChainText(const TreeWalk& walk, const FamilyTree& tree, EntryNumber entry, std::size_t longest);

} // namespace stemwright
