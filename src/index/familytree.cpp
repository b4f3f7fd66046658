// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/familytree.h"

namespace stemwright
{

namespace
{

std::vector<std::int32_t> LoadIds(Connection& connection, const QString& table)
{
    std::vector<std::int32_t> ids;
    ids.reserve(static_cast<std::size_t>(connection.countRows(table)));
    Statement statement = connection.prepare(QStringLiteral("SELECT Id FROM \"%1\" ORDER BY Id").arg(table));
    while (statement.step()) {
        ids.push_back(statement.integer(0));
    }
    return ids;
}

std::optional<TreePosition> Find(const std::vector<std::int32_t>& ids, int id)
{
    const auto found = std::lower_bound(ids.begin(), ids.end(), id);
    if (found == ids.end() || *found != id) {
        return std::nullopt;
    }
    return static_cast<TreePosition>(found - ids.begin());
}

} // namespace

FamilyTree FamilyTree::load(Connection& connection)
{
    FamilyTree tree;
    tree.m_individualIds = LoadIds(connection, QStringLiteral("Indi"));
    tree.m_familyIds = LoadIds(connection, QStringLiteral("Fam"));
    return tree;
}

std::optional<TreePosition> FamilyTree::findIndividual(int id) const
{
    return Find(m_individualIds, id);
}

std::optional<TreePosition> FamilyTree::findFamily(int id) const
{
    return Find(m_familyIds, id);
}

} // namespace stemwright
