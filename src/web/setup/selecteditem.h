// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright
{

/// One item of a setup, as it stands in SelectedItems.ItemValue: nine text fields joined by one TAB each.
struct SelectedItem {
    /// Shown to the user, for example "Birth" or a fact's label.
    QString name;
    /// An Indi column ("GivenName"), an event tag ("BIRT", "Marriage") or a fact of the schema tables ("_FA3").
    QString source;
    /// "n" a name part, "dp" an event with date and place, "r" a relationship fact.
    QString kind;
    /// Whether the tree pages show the item, not only the personal pages.
    bool inTree = false;
    QString beforeItem;
    QString beforePlace;
    QString afterItem;
    /// Hidden for privacy-protected persons.
    bool isPrivate = false;
    /// "Indi", "Fam" or "Fam2Child".
    QString table;

    /// Reads a stored record; missing fields are empty.
    static SelectedItem fromRecord(const QString& record);
    /// The record to store; a TAB or line break within a field becomes a blank.
    QString toRecord() const;

    friend bool operator==(const SelectedItem&, const SelectedItem&) = default;
};

} // namespace stemwright
