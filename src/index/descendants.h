// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"

/// Counting descendants over the links in memory. Nothing here fails. Stands on the family tree.
namespace stemwright
{

/// How many different individuals descend from this one, whatever the number of ways.
std::size_t CountDescendants(const FamilyTree& tree, TreePosition individual);

/// The individual with the most descendants, the one with the smallest id among equals; no value in a tree without
/// families. It is exact unless very many individuals are each reached in very many ways; then the best of those that
/// were counted is given.
std::optional<TreePosition> IndividualWithMostDescendants(const FamilyTree& tree);

} // namespace stemwright
