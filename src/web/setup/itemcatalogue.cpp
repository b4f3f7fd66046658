// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/itemcatalogue.h"

#include "base/error.h"
#include "base/pattern.h"

namespace stemwright
{

namespace
{

const QString individuals = QStringLiteral("Indi");
const QString families = QStringLiteral("Fam");
const QString childLinks = QStringLiteral("Fam2Child");
const QString namePart = QStringLiteral("n");
const QString datedEvent = QStringLiteral("dp");
const QString relationship = QStringLiteral("r");

SelectedItem Item(const QString& name, const QString& source, const QString& kind, const QString& table)
{
    SelectedItem item;
    item.name = name;
    item.source = source;
    item.kind = kind;
    item.table = table;
    return item;
}

std::vector<SelectedItem> FixedItems()
{
    return {Item(QStringLiteral("Title"), QStringLiteral("Title"), namePart, individuals),
            Item(QStringLiteral("Given name"), QStringLiteral("GivenName"), namePart, individuals),
            Item(QStringLiteral("Surname"), QStringLiteral("Surname"), namePart, individuals),
            Item(QStringLiteral("Suffix"), QStringLiteral("Suffix"), namePart, individuals),
            Item(QStringLiteral("Alias"), QStringLiteral("Alias"), namePart, individuals),
            Item(QStringLiteral("Birth"), QStringLiteral("BIRT"), datedEvent, individuals),
            Item(QStringLiteral("Marriage"), QStringLiteral("Marriage"), datedEvent, families),
            Item(QStringLiteral("Death"), QStringLiteral("DEAT"), datedEvent, individuals)};
}

/// The relations to father and mother stand with the child's link to its family.
SelectedItem IndividualFact(const QString& label, const QString& fact)
{
    return MatchesPattern(fact, u"_[FM]REL") ? Item(label, fact, relationship, childLinks)
                                             : Item(label, fact, datedEvent, individuals);
}

/// The facts about a partnership's beginning and end have no date and place of their own.
SelectedItem FamilyFact(const QString& label, const QString& fact)
{
    return Item(label, fact, MatchesPattern(fact, u"_M*") ? relationship : datedEvent, families);
}

void AppendFacts(std::vector<SelectedItem>& items, Connection& connection, const QString& table,
                 SelectedItem (*make)(const QString& label, const QString& fact))
{
    Statement statement = connection.prepareJet(QStringLiteral("SELECT * FROM ") + table);
    const int fact = statement.column(u"Fact");
    const int label = statement.column(u"Label");
    while (statement.step()) {
        const QString source = statement.text(fact);
        const QString name = statement.text(label);
        items.push_back(make(name.isEmpty() ? source : name, source));
    }
}

} // namespace

std::vector<SelectedItem> LoadItemCatalogue(Connection& connection)
{
    std::vector<SelectedItem> items = FixedItems();
    AppendFacts(items, connection, QStringLiteral("SchemaIndi"), IndividualFact);
    AppendFacts(items, connection, QStringLiteral("SchemaFam"), FamilyFact);
    return items;
}

SelectedItem CatalogueItemNamed(Connection& connection, const QString& typed)
{
    const auto isMeant = [&typed](const SelectedItem& item) {
        const QString qualified = item.table + u'.' + item.source;
        return item.name.compare(typed, Qt::CaseInsensitive) == 0 || qualified.compare(typed, Qt::CaseInsensitive) == 0;
    };
    const std::vector<SelectedItem> items = LoadItemCatalogue(connection);
    const auto first = std::find_if(items.begin(), items.end(), isMeant);
    if (first == items.end()) {
        throw Error(QStringLiteral("The catalogue has no item \"%1\".").arg(typed));
    }
    const auto second = std::find_if(first + 1, items.end(), isMeant);
    if (second != items.end()) {
        throw Error(
            QStringLiteral("There are several items \"%1\"; name the one you mean by its source, %2.%3 or %4.%5.")
                .arg(typed, first->table, first->source, second->table, second->source));
    }
    return *first;
}

} // namespace stemwright
