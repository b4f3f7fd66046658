// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The links of the whole family tree in memory, compact and read once, so that walking to parents, spouses and
/// children costs no query. Texts are not held here. Loading fails as the engine fails. Stands on the connection.
namespace stemwright
{

/// A place in the arrays of a FamilyTree, 0-based; individuals and families are counted apart.
using TreePosition = std::uint32_t;

class FamilyTree
{
public:
    static FamilyTree load(Connection& connection);

    /// The number of individuals; their positions are in the order of their ids.
    std::size_t individuals() const { return m_individualIds.size(); }

    std::size_t families() const { return m_familyIds.size(); }

    std::optional<TreePosition> findIndividual(int id) const;
    std::optional<TreePosition> findFamily(int id) const;

    int individualId(TreePosition individual) const { return m_individualIds[individual]; }

    int familyId(TreePosition family) const { return m_familyIds[family]; }

private:
    std::vector<std::int32_t> m_individualIds;
    std::vector<std::int32_t> m_familyIds;
};

} // namespace stemwright
