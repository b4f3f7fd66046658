// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "web/setup/setup.h"

#include <QtCore/QString>

#include <vector>

/// The items that a setup includes, while they are being chosen and arranged. Changes are held until save() writes them
/// back as a whole. Rows are counted from 0. What cannot be done throws Error, unless it says otherwise. Stands on
/// setup.h.
namespace stemwright
{

/// How an item is shown.
struct ItemOptions {
    /// Also in the family tree, not only on the personal page.
    bool inTree = false;
    QString beforeItem;
    QString beforePlace;
    QString afterItem;
    bool isPrivate = false;

    static ItemOptions of(const SelectedItem& item);
};

/// Whether the texts around an item can be changed: only while it is shown in the tree.
bool MayChangeTexts(const ItemOptions& options);
/// Whether the text before the place can be changed: only for an event with date and place that is shown in the tree.
bool MayChangeTextBeforePlace(const SelectedItem& item, const ItemOptions& options);

/// Makes these the items of a setup, in their order, as one action.
void WriteSelectedItems(Connection& connection, const QString& setupName, const std::vector<SelectedItem>& items);

class ItemSelection
{
public:
    /// Throws Error when there is no setup with this name.
    ItemSelection(Connection& connection, Talk& talk, const QString& setupName);

    const std::vector<SelectedItem>& items() const { return m_items; }

    const SelectedItem& item(int row) const;

    /// Appends an item of the catalogue. False, after the user was told, when the setup includes it already.
    bool add(const SelectedItem& item);
    void remove(int row);

    bool canMoveUp(int row) const { return row > 0; }

    bool canMoveDown(int row) const { return row + 1 < static_cast<int>(m_items.size()); }

    /// Swaps an item with its neighbour. Returns the row at which it then stands.
    int moveUp(int row);
    int moveDown(int row);

    /// Changes how an item is shown. Texts that the options do not permit to change must stay as they are.
    void setOptions(int row, const ItemOptions& options);

    /// Writes the items back as the setup's items, in their order, as one action.
    void save();

private:
    void requireRow(int row) const;
    SelectedItem& at(int row);

    Connection& m_connection;
    Talk& m_talk;
    SetupRow m_setup;
    std::vector<SelectedItem> m_items;
};

} // namespace stemwright
