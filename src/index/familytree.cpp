// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/familytree.h"

#include <unordered_set>

namespace stemwright
{

namespace
{

std::optional<TreePosition> Find(std::span<const std::int32_t> ids, int id)
{
    if (ids.empty() || id < ids.front()) {
        return std::nullopt;
    }
    // Most files number their records without gaps; then the number says the place.
    const auto guess = static_cast<std::size_t>(std::int64_t{id} - ids.front());
    if (guess < ids.size() && ids[guess] == id) {
        return static_cast<TreePosition>(guess);
    }
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
    const std::vector<FamilyMention> asChild = tree.loadIndividuals(connection);
    tree.loadFamilies(connection);
    tree.loadChildren(connection);
    const std::vector<FamilyMention> asSpouse = tree.loadSpouses(connection);
    tree.addMissingFamilies({&asChild, &asSpouse});
    tree.linkParents(asChild);
    tree.m_spouseFamilies = TreeLinks(tree.individuals(), tree.linksOf(asSpouse));
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

std::vector<FamilyTree::FamilyMention> FamilyTree::loadIndividuals(Connection& connection)
{
    std::vector<FamilyMention> mentions;
    Statement statement = connection.prepare(QStringLiteral("SELECT Id, FAMC FROM Indi ORDER BY Id"));
    while (statement.step()) {
        if (!statement.isNull(1)) {
            mentions.push_back({static_cast<TreePosition>(m_individualIds.size()), statement.integer(1)});
        }
        m_individualIds.push_back(statement.integer(0));
    }
    return mentions;
}

void FamilyTree::loadFamilies(Connection& connection)
{
    Statement statement = connection.prepare(QStringLiteral("SELECT Id, HusbandId, WifeId FROM Fam ORDER BY Id"));
    while (statement.step()) {
        m_familyIds.push_back(statement.integer(0));
        m_husbands.push_back(positionOfIndividual(statement.optionalInteger(1)));
        m_wives.push_back(positionOfIndividual(statement.optionalInteger(2)));
    }
    m_recordedFamilies = m_familyIds.size();
}

void FamilyTree::loadChildren(Connection& connection)
{
    std::vector<TreeLinks::Link> links;
    Statement statement = connection.prepare(QStringLiteral("SELECT FamId, ChildId FROM Fam2Child ORDER BY rowid"));
    while (statement.step()) {
        const std::optional<TreePosition> family = findFamily(statement.integer(0));
        const std::optional<TreePosition> child = findIndividual(statement.integer(1));
        if (family && child) {
            links.push_back({*family, *child});
        }
    }
    m_children = TreeLinks(m_familyIds.size(), std::move(links));
}

std::vector<FamilyTree::FamilyMention> FamilyTree::loadSpouses(Connection& connection)
{
    std::vector<FamilyMention> mentions;
    Statement statement = connection.prepare(QStringLiteral("SELECT SpouseId, FamId FROM Spouse2Fam ORDER BY rowid"));
    while (statement.step()) {
        if (const std::optional<TreePosition> spouse = findIndividual(statement.integer(0))) {
            mentions.push_back({*spouse, statement.integer(1)});
        }
    }
    return mentions;
}

void FamilyTree::addMissingFamilies(std::initializer_list<const std::vector<FamilyMention>*> lists)
{
    std::vector<std::int32_t> missing;
    for (const std::vector<FamilyMention>* mentions : lists) {
        for (const FamilyMention& mention : *mentions) {
            if (!findFamily(mention.familyId)) {
                missing.push_back(mention.familyId);
            }
        }
    }
    std::sort(missing.begin(), missing.end());
    missing.erase(std::unique(missing.begin(), missing.end()), missing.end());
    m_familyIds.insert(m_familyIds.end(), missing.begin(), missing.end());
    m_husbands.resize(m_familyIds.size(), nowhere);
    m_wives.resize(m_familyIds.size(), nowhere);
}

void FamilyTree::linkParents(const std::vector<FamilyMention>& asChild)
{
    m_parentFamilies.assign(individuals(), nowhere);
    std::vector<TreeLinks::Link> links = linksOf(asChild);
    for (TreeLinks::Link& link : links) {
        m_parentFamilies[link.owner] = link.item;
        std::swap(link.owner, link.item);
    }
    m_childrenByParents = TreeLinks(m_familyIds.size(), std::move(links));
}

std::vector<TreeLinks::Link> FamilyTree::linksOf(const std::vector<FamilyMention>& mentions) const
{
    std::vector<TreeLinks::Link> links;
    links.reserve(mentions.size());
    for (const FamilyMention& mention : mentions) {
        links.push_back({mention.individual, positionOfFamily(mention.familyId)});
    }
    return links;
}

TreePosition FamilyTree::positionOfIndividual(const std::optional<int>& id) const
{
    return id ? findIndividual(*id).value_or(nowhere) : nowhere;
}

TreePosition FamilyTree::positionOfFamily(int id) const
{
    if (const std::optional<TreePosition> family = findFamily(id)) {
        return *family;
    }
    const std::optional<TreePosition> missing = Find(std::span(m_familyIds).subspan(m_recordedFamilies), id);
    return missing ? static_cast<TreePosition>(*missing + m_recordedFamilies) : nowhere;
}

} // namespace stemwright
