// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/pendingchanges.h"
#include "web/setup/setupcolumns.h"
#include "web/setup/treeediting.h"

/// One setup while it is being edited, by the wizard, the command line or a test. Each change is written to its column
/// at once, within a transaction that save() commits; whatever was not saved is undone when the object goes. Refused
/// values throw Error and change nothing. Stands on setupcolumns.h and treeediting.h.
namespace stemwright
{

class SetupEditing
{
public:
    /// Throws Error when there is no setup with this name.
    SetupEditing(Connection& connection, Environment& environment, const QString& setupName);

    const QString& setupName() const { return m_row.name; }

    /// The setup with all changes made so far.
    Setup setup() const;

    /// Sets a column of the setup from what was typed (setupcolumns.h). An image is read from the file with that path,
    /// whose extension becomes the file type (or the usual one of its kind); an empty path removes the image.
    void set(const QString& columnName, const QString& typed);
    /// Makes these the setup's items, in their order.
    void setItems(const std::vector<SelectedItem>& items);
    /// The value of a column in the form in which set() takes it; an image is described by its size.
    QString settingText(const SetupColumn& column) const;

    /// The bytes of the emblem's image file; empty when there is none.
    QByteArray emblem() const;

    TreeEditing& trees() { return m_trees; }

    /// What keeps the setup's pages from being built, the tree definition being edited included.
    std::optional<Message> obstacle() const;

    /// Whether there are changes that were not saved.
    bool edited() const { return m_changes.any() || m_trees.changed(); }

    /// Applies a tree definition that is still being edited, if the page holds them, and checks the page's values.
    /// False, after the user was told what is wrong, when the page must not be left.
    bool leavePage(WizardPage page);

    /// Makes all changes lasting, those of a tree definition that is still being edited as well. False, after the user
    /// was told, when the family file cannot be written.
    bool save();
    /// Asks whether to lose the changes since the last save, if there are any, and undoes them on Yes. False when the
    /// answer is No.
    bool cancel();
    /// Saves and then runs a procedure that is a user action of its own, such as building the site; the editing can go
    /// on afterwards. Of changes that cannot be saved the user is told, and the procedure is not run.
    void saveAndRun(const std::function<void()>& procedure);

private:
    void write(const SetupColumn& column, const std::variant<int, QString>& value);
    void storeEmblem(const QString& path);
    void removeEmblem();

    Connection& m_connection;
    Environment& m_environment;
    SetupRow m_row;
    PendingChanges m_changes;
    TreeEditing m_trees;
};

} // namespace stemwright
