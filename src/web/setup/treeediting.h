// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/pendingchanges.h"
#include "web/setup/setup.h"
#include "web/setup/treedisplay.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

/// The tree definitions of a setup while they are being edited: one at a time is taken up, changed and applied. Refused
/// values throw Error; what the user is asked or told goes through Talk. Stands on setup.h.
namespace stemwright
{

/// The image of a tree icon in the application's folder; no value for a number, counted from 1, that has none.
std::optional<QString> TreeIconFile(int icon, const ApplicationFolder& application);

/// The name of that image below the application's folder and below a site: "graphics/icons_tree_09.gif" for icon 10.
/// Icon 1 stands in for a number that has none, as family files of earlier releases may have it.
QString TreeIconName(int icon, const ApplicationFolder& application);

class TreeEditing
{
public:
    /// What is stored is one of the `changes`.
    TreeEditing(Connection& connection, Environment& environment, PendingChanges& changes, QString setupName);

    /// The setup's tree definitions in their order, as stored.
    std::vector<TreeDefinition> definitions() const;

    /// The definition that was taken up and not yet applied, with the changes made to it so far.
    const std::optional<TreeDefinition>& edited() const { return m_edited; }

    /// Appends an Outline tree without a head and takes it up.
    void add();
    /// Takes up the setup's only tree definition while it has no head, so that the tree a setup is born with becomes
    /// the first one; otherwise does as add().
    void addOrFillFirst();
    /// Takes up the definition with this TreeNumber.
    void edit(int number);

    /// The changes to the definition that was taken up. A display is found without regard to case; an icon is one that
    /// the application's folder holds, counted from 1.
    void setDisplay(const QString& display);
    void setIcon(int icon);
    /// Whether there is anybody who could be a head; if not, the user is told.
    bool mayChooseHead() const;
    /// Makes an individual the head. False, after the user was told, while the family file holds no individuals.
    bool setHead(int individualId);

    /// Stores the definition that was taken up. False, after the user was told, when it has no head yet; it then stays
    /// taken up.
    bool apply();

    /// Stores what was changed so far in the definition that was taken up, head or not; it stays taken up.
    void keep();
    /// Whether there are changes that were neither applied nor kept.
    bool changed() const;

    /// Deletes a definition after asking. False when it is the last one, of which the user is told, or when the answer
    /// is No.
    bool remove(int number);

private:
    TreeDefinition definition(int number) const;
    TreeDefinition& taken();
    void take(TreeDefinition definition);

    Connection& m_connection;
    Environment& m_environment;
    PendingChanges& m_changes;
    QString m_setupName;
    std::optional<TreeDefinition> m_edited;
};

} // namespace stemwright
