// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/familytree.h"

#include <unordered_set>

namespace stemwright
{

namespace
{

std::vector<std::int32_t> LoadIds(Connection& connection, const QString& sql)
{
    std::vector<std::int32_t> ids;
    Statement statement = connection.prepare(sql);
    while (statement.step()) {
        ids.push_back(statement.integer(0));
    }
    return ids;
}

std::optional<TreePosition> Find(std::span<const std::int32_t> ids, int id)
{
    const auto found = std::lower_bound(ids.begin(), ids.end(), id);
    if (found == ids.end() || *found != id) {
        return std::nullopt;
    }
    return static_cast<TreePosition>(found - ids.begin());
}

/// The links without those that are there already.
std::vector<TreeLinks::Link> WithoutRepeats(std::vector<TreeLinks::Link> links)
{
    const auto key = [](const TreeLinks::Link& link) {
        constexpr unsigned positionBits = 32;
        return std::uint64_t{link.owner} << positionBits | link.item;
    };
    std::vector<std::uint64_t> keys;
    keys.reserve(links.size());
    std::transform(links.begin(), links.end(), std::back_inserter(keys), key);
    std::sort(keys.begin(), keys.end());
    if (std::adjacent_find(keys.begin(), keys.end()) != keys.end()) {
        std::unordered_set<std::uint64_t> seen;
        std::erase_if(links, [&](const TreeLinks::Link& link) { return !seen.insert(key(link)).second; });
    }
    return links;
}

} // namespace

TreeLinks::TreeLinks(std::size_t owners, std::vector<Link> given) : m_begin(owners + 1, 0)
{
    const std::vector<Link> links = WithoutRepeats(std::move(given));
    m_items.resize(links.size());
    for (const Link& link : links) {
        ++m_begin[link.owner + 1];
    }
    for (std::size_t owner = 0; owner < owners; ++owner) {
        m_begin[owner + 1] += m_begin[owner];
    }
    std::vector<std::uint32_t> next(m_begin.begin(), m_begin.end() - 1);
    for (const Link& link : links) {
        m_items[next[link.owner]++] = link.item;
    }
}

FamilyTree FamilyTree::load(Connection& connection)
{
    FamilyTree tree;
    tree.m_individualIds = LoadIds(connection, QStringLiteral("SELECT Id FROM Indi ORDER BY Id"));
    tree.m_familyIds = LoadIds(connection, QStringLiteral("SELECT Id FROM Fam ORDER BY Id"));
    tree.m_recordedFamilies = tree.m_familyIds.size();
    tree.addMissingFamilies(connection);
    tree.loadFamilies(connection);
    tree.loadParents(connection);
    tree.loadChildren(connection);
    tree.loadSpouseFamilies(connection);
    return tree;
}

std::optional<TreePosition> FamilyTree::findIndividual(int id) const
{
    return Find(m_individualIds, id);
}

std::optional<TreePosition> FamilyTree::findFamily(int id) const
{
    return Find(std::span(m_familyIds).first(m_recordedFamilies), id);
}

TreePosition FamilyTree::partner(TreePosition family, TreePosition individual) const
{
    const TreePosition other = m_husbands[family] == individual ? m_wives[family] : m_husbands[family];
    return other == individual ? nowhere : other;
}

void FamilyTree::addMissingFamilies(Connection& connection)
{
    const std::vector<std::int32_t> missing =
        LoadIds(connection, QStringLiteral("SELECT FamId FROM Spouse2Fam WHERE FamId NOT IN (SELECT Id FROM Fam)"
                                           " UNION SELECT FAMC FROM Indi WHERE FAMC NOT IN (SELECT Id FROM Fam)"
                                           " ORDER BY 1"));
    m_familyIds.insert(m_familyIds.end(), missing.begin(), missing.end());
}

void FamilyTree::loadFamilies(Connection& connection)
{
    m_husbands.assign(m_familyIds.size(), nowhere);
    m_wives.assign(m_familyIds.size(), nowhere);
    Statement statement = connection.prepare(QStringLiteral("SELECT HusbandId, WifeId FROM Fam ORDER BY Id"));
    for (std::size_t family = 0; statement.step(); ++family) {
        m_husbands[family] = positionOfIndividual(statement.optionalInteger(0));
        m_wives[family] = positionOfIndividual(statement.optionalInteger(1));
    }
}

void FamilyTree::loadParents(Connection& connection)
{
    m_parentFamilies.assign(m_individualIds.size(), nowhere);
    std::vector<TreeLinks::Link> links;
    Statement statement = connection.prepare(QStringLiteral("SELECT FAMC FROM Indi ORDER BY Id"));
    for (TreePosition individual = 0; statement.step(); ++individual) {
        const TreePosition family = positionOfFamily(statement.optionalInteger(0));
        m_parentFamilies[individual] = family;
        if (family != nowhere) {
            links.push_back({family, individual});
        }
    }
    m_childrenByParents = TreeLinks(m_familyIds.size(), std::move(links));
}

void FamilyTree::loadChildren(Connection& connection)
{
    std::vector<TreeLinks::Link> links;
    Statement statement = connection.prepare(QStringLiteral("SELECT FamId, ChildId FROM Fam2Child ORDER BY rowid"));
    while (statement.step()) {
        const TreePosition family = positionOfFamily(statement.integer(0));
        const TreePosition child = positionOfIndividual(statement.integer(1));
        if (family != nowhere && child != nowhere) {
            links.push_back({family, child});
        }
    }
    m_children = TreeLinks(m_familyIds.size(), std::move(links));
}

void FamilyTree::loadSpouseFamilies(Connection& connection)
{
    std::vector<TreeLinks::Link> links;
    Statement statement = connection.prepare(QStringLiteral("SELECT SpouseId, FamId FROM Spouse2Fam ORDER BY rowid"));
    while (statement.step()) {
        const TreePosition spouse = positionOfIndividual(statement.integer(0));
        const TreePosition family = positionOfFamily(statement.integer(1));
        if (spouse != nowhere && family != nowhere) {
            links.push_back({spouse, family});
        }
    }
    m_spouseFamilies = TreeLinks(m_individualIds.size(), std::move(links));
}

TreePosition FamilyTree::positionOfIndividual(const std::optional<int>& id) const
{
    return id ? findIndividual(*id).value_or(nowhere) : nowhere;
}

TreePosition FamilyTree::positionOfFamily(const std::optional<int>& id) const
{
    if (!id) {
        return nowhere;
    }
    if (const std::optional<TreePosition> family = findFamily(*id)) {
        return *family;
    }
    const std::optional<TreePosition> missing = Find(std::span(m_familyIds).subspan(m_recordedFamilies), *id);
    return missing ? static_cast<TreePosition>(*missing + m_recordedFamilies) : nowhere;
}

} // namespace stemwright
