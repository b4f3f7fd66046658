// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/itemselection.h"

#include "base/error.h"
#include "store/engine/schema.h"
#include "web/setup/setupmessages.h"

#include <utility>

namespace stemwright
{

namespace
{

bool IsSameItem(const SelectedItem& left, const SelectedItem& right)
{
    return left.source.compare(right.source, Qt::CaseInsensitive) == 0 &&
           left.table.compare(right.table, Qt::CaseInsensitive) == 0;
}

void RequirePermitted(const SelectedItem& item, const ItemOptions& options)
{
    const bool changesTexts = options.beforeItem != item.beforeItem || options.afterItem != item.afterItem;
    const bool changesPlaceText = options.beforePlace != item.beforePlace;
    if ((changesTexts || changesPlaceText) && !MayChangeTexts(options)) {
        throw Error(QStringLiteral("Texts before and after an item can be given only to an item that is shown in the "
                                   "family tree, which \"%1\" is not.")
                        .arg(item.name));
    }
    if (changesPlaceText && !MayChangeTextBeforePlace(item, options)) {
        throw Error(QStringLiteral("\"%1\" has no place before which a text could stand.").arg(item.name));
    }
}

/// The engine would refuse a longer record, and then the whole selection.
void RequireStorable(const SelectedItem& item)
{
    if (item.toRecord().size() > maxTextLength) {
        throw Error(QStringLiteral("The name of item \"%1\" and the texts around it are too long; together they can "
                                   "have about 230 characters.")
                        .arg(item.name));
    }
}

} // namespace

ItemOptions ItemOptions::of(const SelectedItem& item)
{
    return {item.inTree, item.beforeItem, item.beforePlace, item.afterItem, item.isPrivate};
}

bool MayChangeTexts(const ItemOptions& options)
{
    return options.inTree;
}

bool MayChangeTextBeforePlace(const SelectedItem& item, const ItemOptions& options)
{
    return MayChangeTexts(options) && item.kind == QStringLiteral("dp");
}

ItemSelection::ItemSelection(Connection& connection, Talk& talk, const QString& setupName)
    : m_connection(connection), m_talk(talk), m_setup(RequireSetup(connection, setupName)),
      m_items(LoadSelectedItems(connection, m_setup.name))
{
}

void ItemSelection::requireRow(int row) const
{
    if (row < 0 || row >= static_cast<int>(m_items.size())) {
        throw Error(QStringLiteral("Setup \"%1\" has %2 items; there is no item %3.")
                        .arg(m_setup.name)
                        .arg(m_items.size())
                        .arg(row + 1));
    }
}

const SelectedItem& ItemSelection::item(int row) const
{
    requireRow(row);
    return m_items[static_cast<std::size_t>(row)];
}

SelectedItem& ItemSelection::at(int row)
{
    requireRow(row);
    return m_items[static_cast<std::size_t>(row)];
}

bool ItemSelection::add(const SelectedItem& item)
{
    const auto isSame = [&item](const SelectedItem& included) { return IsSameItem(included, item); };
    if (std::any_of(m_items.begin(), m_items.end(), isSame)) {
        m_talk.tell(setupmessages::ItemAlreadyIncluded());
        return false;
    }
    RequireStorable(item);
    m_items.push_back(item);
    return true;
}

void ItemSelection::remove(int row)
{
    requireRow(row);
    m_items.erase(m_items.begin() + row);
}

int ItemSelection::moveUp(int row)
{
    if (SelectedItem& item = at(row); !canMoveUp(row)) {
        throw Error(QStringLiteral("\"%1\" is the first item already.").arg(item.name));
    }
    std::swap(at(row), at(row - 1));
    return row - 1;
}

int ItemSelection::moveDown(int row)
{
    if (SelectedItem& item = at(row); !canMoveDown(row)) {
        throw Error(QStringLiteral("\"%1\" is the last item already.").arg(item.name));
    }
    std::swap(at(row), at(row + 1));
    return row + 1;
}

void ItemSelection::setOptions(int row, const ItemOptions& options)
{
    RequirePermitted(at(row), options);
    SelectedItem changed = at(row);
    changed.inTree = options.inTree;
    changed.beforeItem = options.beforeItem;
    changed.beforePlace = options.beforePlace;
    changed.afterItem = options.afterItem;
    changed.isPrivate = options.isPrivate;
    RequireStorable(changed);
    at(row) = changed;
}

void ItemSelection::save()
{
    WriteSelectedItems(m_connection, m_setup.name, m_items);
}

void WriteSelectedItems(Connection& connection, const QString& setupName, const std::vector<SelectedItem>& items)
{
    Transaction transaction(connection);
    Statement erase = connection.prepare(QStringLiteral("DELETE FROM SelectedItems WHERE %1").arg(RowsOfSetup(1)));
    erase.bind(1, setupName).run();
    Statement statement =
        connection.prepare(QStringLiteral("INSERT INTO SelectedItems (SetupName, ItemValue) VALUES (?1, ?2)"));
    for (const SelectedItem& item : items) {
        statement.bind(1, setupName).bind(2, item.toRecord()).run();
    }
    transaction.commit();
}

} // namespace stemwright
