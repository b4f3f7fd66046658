// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"

#include <set>

/// The relatives of an individual by their numbers, found over the links in memory. Nobody is visited twice, so that
/// cousins who marry and people who are said to be their own ancestors end the walk. Nothing here fails; a number that
/// the tree does not have has no relatives. Stands on the family tree.
namespace stemwright
{

/// Adds all ancestors: the parents in the family in which the individual is a child, and theirs.
void GetAncIds(const FamilyTree& tree, int individualId, std::set<int>& ids);

/// Adds all descendants: the children of the families in which the individual is a spouse, and theirs.
void GetDescIds(const FamilyTree& tree, int individualId, std::set<int>& ids);

} // namespace stemwright
