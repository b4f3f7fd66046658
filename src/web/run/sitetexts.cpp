// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/sitetexts.h"

namespace stemwright
{

namespace
{

RunColumns AlwaysRead()
{
    return {ColumnList(TableNamed(u"Indi"),
                       {QStringLiteral("Title"), QStringLiteral("GivenName"), QStringLiteral("Surname"),
                        QStringLiteral("Suffix"), QStringLiteral("Sex"), QStringLiteral("BIRT_Date"),
                        QStringLiteral("DEAT_Date"), QStringLiteral("DEAT_Place"), QStringLiteral("Alias")}),
            ColumnList(TableNamed(u"Fam"), {QStringLiteral("_MSTAT")}),
            ColumnList(TableNamed(u"Fam2Child"), {QStringLiteral("_FREL"), QStringLiteral("_MREL")})};
}

constexpr std::size_t contactColumns = 3;

std::uint64_t ChildKey(TreePosition family, TreePosition child)
{
    constexpr unsigned positionBits = 32;
    return std::uint64_t{family} << positionBits | child;
}

/// Reads all rows of a table in the order of the ids, which is the order of the positions.
void Read(Connection& connection, const QString& table, const ColumnList& columns, TextTable& texts)
{
    Statement statement =
        connection.prepare(QStringLiteral("SELECT %1 FROM %2 ORDER BY Id").arg(columns.selectList(), table));
    while (statement.step()) {
        texts.appendRow(statement, 0);
    }
}

} // namespace

SiteTexts::SiteTexts(std::vector<PublishedItem> items, const RunColumns& columns)
    : m_items(std::move(items)), m_individuals(columns.individual.size()), m_families(columns.family.size()),
      m_children(columns.childInFamily.size()), m_contacts(contactColumns)
{
}

SiteTexts SiteTexts::load(Connection& connection, const FamilyTree& tree, const std::vector<SelectedItem>& items)
{
    RunColumns columns = AlwaysRead();
    std::vector<PublishedItem> published = ResolveItems(items, columns);
    SiteTexts texts(std::move(published), columns);
    Read(connection, QStringLiteral("Indi"), columns.individual, texts.m_individuals);
    Read(connection, QStringLiteral("Fam"), columns.family, texts.m_families);
    texts.loadChildren(connection, tree, columns);
    texts.loadContacts(connection, tree);
    return texts;
}

std::optional<std::string_view> SiteTexts::childInFamily(TreePosition family, TreePosition child,
                                                         std::size_t column) const
{
    const auto row = m_childRows.find(ChildKey(family, child));
    return row == m_childRows.end() ? std::nullopt : unlessWithheld(m_children.cell(row->second, column));
}

std::optional<Contact> SiteTexts::contact(TreePosition individual) const
{
    const auto row = m_contactRows.find(individual);
    if (row == m_contactRows.end()) {
        return std::nullopt;
    }
    return Contact{m_contacts.text(row->second, 0), m_contacts.text(row->second, 1), m_contacts.text(row->second, 2)};
}

void SiteTexts::loadChildren(Connection& connection, const FamilyTree& tree, const RunColumns& columns)
{
    Statement statement =
        connection.prepare(QStringLiteral("SELECT FamId, ChildId, %1 FROM Fam2Child"
                                          " WHERE _FREL IS NOT NULL OR _MREL IS NOT NULL ORDER BY rowid")
                               .arg(columns.childInFamily.selectList()));
    while (statement.step()) {
        const std::optional<TreePosition> family = tree.findFamily(statement.integer(0));
        const std::optional<TreePosition> child = tree.findIndividual(statement.integer(1));
        if (family && child) {
            m_childRows.try_emplace(ChildKey(*family, *child), static_cast<std::uint32_t>(m_children.rows()));
            m_children.appendRow(statement, 2);
        }
    }
}

void SiteTexts::loadContacts(Connection& connection, const FamilyTree& tree)
{
    Statement statement = connection.prepare(
        QStringLiteral("SELECT Id, trim(Email1), trim(Email2), trim(WebPage) FROM WebAddr ORDER BY rowid"));
    while (statement.step()) {
        if (const std::optional<TreePosition> individual = tree.findIndividual(statement.integer(0))) {
            m_contactRows.try_emplace(*individual, static_cast<std::uint32_t>(m_contacts.rows()));
            m_contacts.appendRow(statement, 1);
        }
    }
}

} // namespace stemwright
