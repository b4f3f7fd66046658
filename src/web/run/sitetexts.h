// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/familytree.h"
#include "index/texttable.h"
#include "web/run/publisheditem.h"
#include "web/setup/selecteditem.h"

#include <unordered_map>
#include <unordered_set>

/// The texts that a publication needs, read once: of each table only the columns that the setup's items, the names and
/// the privacy test use. Loading fails as the engine fails. Stands on the family tree's links.
namespace stemwright
{

/// The numbers of the columns that are always read.
namespace individualcolumn
{
inline constexpr std::size_t title = 0;
inline constexpr std::size_t givenName = 1;
inline constexpr std::size_t surname = 2;
inline constexpr std::size_t suffix = 3;
inline constexpr std::size_t sex = 4;
inline constexpr std::size_t birthDate = 5;
inline constexpr std::size_t deathDate = 6;
inline constexpr std::size_t deathPlace = 7;
inline constexpr std::size_t alias = 8;
} // namespace individualcolumn

namespace familycolumn
{
inline constexpr std::size_t status = 0;
} // namespace familycolumn

namespace childcolumn
{
inline constexpr std::size_t relationToFather = 0;
inline constexpr std::size_t relationToMother = 1;
} // namespace childcolumn

/// How to reach a person. Empty texts where nothing is known.
struct Contact {
    std::string_view email1;
    std::string_view email2;
    std::string_view webPage;
};

class SiteTexts
{
public:
    /// Reads the columns that these items and the rest need.
    static SiteTexts load(Connection& connection, const FamilyTree& tree, const std::vector<SelectedItem>& items);

    /// Has the text that begins here, a cell of this object, count as Null from now on.
    void withhold(std::string_view text) { m_withheld.insert(text.data()); }

    /// The setup's items in their order.
    const std::vector<PublishedItem>& items() const { return m_items; }

    /// A text of an individual; no value for Null.
    std::optional<std::string_view> individual(TreePosition individual, std::size_t column) const
    {
        return unlessWithheld(m_individuals.cell(individual, column));
    }

    std::optional<std::string_view> family(TreePosition family, std::size_t column) const
    {
        return unlessWithheld(m_families.cell(family, column));
    }

    /// A text of the row that makes the child one of the family's.
    std::optional<std::string_view> childInFamily(TreePosition family, TreePosition child, std::size_t column) const;

    /// No value for an individual without contact data.
    std::optional<Contact> contact(TreePosition individual) const;

private:
    SiteTexts(std::vector<PublishedItem> items, const RunColumns& columns);

    std::optional<std::string_view> unlessWithheld(std::optional<std::string_view> text) const
    {
        return text && !m_withheld.empty() && m_withheld.contains(text->data()) ? std::nullopt : text;
    }

    void loadChildren(Connection& connection, const FamilyTree& tree, const RunColumns& columns);
    void loadContacts(Connection& connection, const FamilyTree& tree);

    std::vector<PublishedItem> m_items;
    TextTable m_individuals;
    TextTable m_families;
    TextTable m_children;
    /// The rows of m_children, by family and child; most children have none.
    std::unordered_map<std::uint64_t, std::uint32_t> m_childRows;
    std::unordered_set<const char*> m_withheld;
    TextTable m_contacts;
    std::unordered_map<TreePosition, std::uint32_t> m_contactRows;
};

} // namespace stemwright
