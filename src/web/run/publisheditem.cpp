// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/publisheditem.h"

namespace stemwright
{

namespace
{

bool IsSame(const QString& text, QLatin1StringView other)
{
    return other.compare(text, Qt::CaseInsensitive) == 0;
}

ItemTable TableOf(const SelectedItem& item)
{
    if (IsSame(item.table, QLatin1StringView("Fam"))) {
        return ItemTable::Family;
    }
    return IsSame(item.table, QLatin1StringView("Fam2Child")) ? ItemTable::ChildInFamily : ItemTable::Individual;
}

ItemKind KindOf(const SelectedItem& item)
{
    if (item.kind == QStringLiteral("dp")) {
        return ItemKind::Event;
    }
    return item.kind == QStringLiteral("r") ? ItemKind::Relationship : ItemKind::NamePart;
}

ColumnList& ColumnsOf(ItemTable table, RunColumns& columns)
{
    switch (table) {
    case ItemTable::Family:
        return columns.family;
    case ItemTable::ChildInFamily:
        return columns.childInFamily;
    case ItemTable::Individual:
        break;
    }
    return columns.individual;
}

std::optional<PublishedItem> Resolve(const SelectedItem& item, RunColumns& columns)
{
    PublishedItem published{item.name.toStdString(),
                            item.source,
                            TableOf(item),
                            KindOf(item),
                            item.inTree,
                            item.isPrivate,
                            item.beforeItem.toStdString(),
                            item.beforePlace.toStdString(),
                            item.afterItem.toStdString()};
    ColumnList& list = ColumnsOf(published.table, columns);
    if (published.kind != ItemKind::Event) {
        const std::optional<std::size_t> value = list.add(item.source);
        published.value = value.value_or(0);
        return value ? std::optional(published) : std::nullopt;
    }
    const std::optional<std::size_t> date = list.add(item.source + QStringLiteral("_Date"));
    const std::optional<std::size_t> place = list.add(item.source + QStringLiteral("_Place"));
    if (!date || !place) {
        return std::nullopt;
    }
    published.value = *date;
    published.place = *place;
    return published;
}

} // namespace

ColumnList::ColumnList(const TableDefinition& table, const QStringList& alwaysRead)
    : m_table(table), m_columns(alwaysRead)
{
}

std::optional<std::size_t> ColumnList::add(const QString& column)
{
    const auto known =
        std::find_if(m_table.columns.begin(), m_table.columns.end(), [&column](const ColumnDefinition& each) {
            return each.name.compare(column, Qt::CaseInsensitive) == 0;
        });
    if (known == m_table.columns.end()) {
        return std::nullopt;
    }
    if (!m_columns.contains(known->name)) {
        m_columns << known->name;
    }
    return static_cast<std::size_t>(m_columns.indexOf(known->name));
}

QString ColumnList::selectList() const
{
    return u'"' + m_columns.join(QStringLiteral("\", \"")) + u'"';
}

std::vector<PublishedItem> ResolveItems(const std::vector<SelectedItem>& items, RunColumns& columns)
{
    std::vector<PublishedItem> published;
    for (const SelectedItem& item : items) {
        if (std::optional<PublishedItem> resolved = Resolve(item, columns)) {
            published.push_back(std::move(*resolved));
        }
    }
    return published;
}

} // namespace stemwright
