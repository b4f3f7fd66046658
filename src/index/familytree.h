// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <vector>

/// The links of the whole family tree in memory, compact and read once, so that walking to parents, spouses and
/// children costs no query. Texts are not held here. Loading fails as the engine fails. Stands on the connection.
namespace stemwright
{

/// A place in the arrays of a FamilyTree, 0-based; individuals and families are counted apart.
using TreePosition = std::uint32_t;

/// Stands for "nobody" and "no family", for example for an unknown husband.
inline constexpr TreePosition nowhere = std::numeric_limits<TreePosition>::max();

/// Lists of places, one list an owner, stored one after another. An owner without a list has an empty one.
class TreeLinks
{
public:
    /// A place `item` in the list of `owner`.
    struct Link {
        TreePosition owner;
        TreePosition item;
    };

    TreeLinks() = default;
    /// Each owner's items keep the order in which they are given. A link that is given again counts once.
    TreeLinks(std::size_t owners, std::vector<Link> given);

    std::span<const TreePosition> of(TreePosition owner) const
    {
        return {m_items.data() + m_begin[owner], m_items.data() + m_begin[owner + 1]};
    }

private:
    std::vector<std::uint32_t> m_begin;
    std::vector<TreePosition> m_items;
};

class FamilyTree
{
public:
    static FamilyTree load(Connection& connection);

    /// The number of individuals; their positions are in the order of their ids.
    std::size_t individuals() const { return m_individualIds.size(); }

    /// The number of families, including those that are only mentioned and have no record of their own.
    std::size_t families() const { return m_familyIds.size(); }

    std::optional<TreePosition> findIndividual(int id) const;
    /// Finds families that have a record.
    std::optional<TreePosition> findFamily(int id) const;

    int individualId(TreePosition individual) const { return m_individualIds[individual]; }

    int familyId(TreePosition family) const { return m_familyIds[family]; }

    /// False for a family that individuals refer to but that has no Fam record.
    bool hasRecord(TreePosition family) const { return family < m_recordedFamilies; }

    /// The families in which the individual is a spouse, in the order of Spouse2Fam, missing ones included.
    std::span<const TreePosition> spouseFamilies(TreePosition individual) const
    {
        return m_spouseFamilies.of(individual);
    }

    /// The children that the record of a family lists (Fam2Child), in that order.
    std::span<const TreePosition> children(TreePosition family) const
    {
        return hasRecord(family) ? m_children.of(family) : std::span<const TreePosition>();
    }

    /// The individuals who name the family as their parents' (Indi.FAMC), in the order of their ids.
    std::span<const TreePosition> childrenByParents(TreePosition family) const
    {
        return m_childrenByParents.of(family);
    }

    /// The family that the individual names as the parents', or `nowhere`; it may lack a record.
    TreePosition parentFamily(TreePosition individual) const { return m_parentFamilies[individual]; }

    /// `nowhere` when the family names none or one who is not in the tree.
    TreePosition husband(TreePosition family) const { return m_husbands[family]; }

    TreePosition wife(TreePosition family) const { return m_wives[family]; }

    /// The other one of husband and wife; `nowhere` when there is none.
    TreePosition partner(TreePosition family, TreePosition individual) const;

private:
    /// An individual's reference to a family, which need not exist.
    struct FamilyMention {
        TreePosition individual;
        int familyId;
    };

    std::vector<FamilyMention> loadIndividuals(Connection& connection);
    void loadFamilies(Connection& connection);
    void loadChildren(Connection& connection);
    std::vector<FamilyMention> loadSpouses(Connection& connection);
    void addMissingFamilies(std::initializer_list<const std::vector<FamilyMention>*> lists);
    void linkParents(const std::vector<FamilyMention>& asChild);
    std::vector<TreeLinks::Link> linksOf(const std::vector<FamilyMention>& mentions) const;
    TreePosition positionOfIndividual(const std::optional<int>& id) const;
    /// The position of any family that is mentioned.
    TreePosition positionOfFamily(int id) const;

    std::vector<std::int32_t> m_individualIds;
    /// First the families with records, then the missing ones, each part in the order of the ids.
    std::vector<std::int32_t> m_familyIds;
    std::size_t m_recordedFamilies = 0;
    std::vector<TreePosition> m_husbands;
    std::vector<TreePosition> m_wives;
    std::vector<TreePosition> m_parentFamilies;
    TreeLinks m_spouseFamilies;
    TreeLinks m_children;
    TreeLinks m_childrenByParents;
};

} // namespace stemwright
