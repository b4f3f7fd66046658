// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"
#include "web/setup.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The setups of a family file: listed, made, cloned, renamed and deleted. Every procedure that returns a truth value
/// is a catch boundary and one action: it tells the user once why it did nothing, and returns false. Stands on setup.h
/// and the default rows of store/file.
namespace stemwright
{

/// How the wizard was called: for a setup that was just made, or for one that stood there.
enum class WizardMode { New, Edit };

class SetupManager
{
public:
    SetupManager(Connection& connection, Environment& environment);

    /// All setups by name.
    QStringList names();

    /// The setup that is chosen in the list; empty when there is none. At first the first one of the list.
    const QString& selected() const { return m_selected; }

    /// Chooses a setup and calls for it to be edited. Throws Error when there is none with this name.
    void select(const QString& name);

    WizardMode wizardMode() const { return m_wizardMode; }

    /// Makes a setup with the default values, items and tree, and selects it.
    bool create(const QString& typedName);
    /// Makes a setup with everything that another one holds but its output folder, and selects it.
    bool clone(const QString& source, const QString& typedName);

    /// Asks for the new name of a setup and gives it. An empty answer does nothing.
    bool rename(const QString& name);
    bool rename(const QString& name, const QString& typedName);

    /// Deletes a setup after asking and selects the next one, or the first one after the last.
    bool remove(const QString& name);

private:
    bool isFree(const QString& name);
    void selectNew(const QString& name);
    void erase(const SetupRow& setup);
    template <typename Action>
    bool perform(Action action);

    Connection& m_connection;
    Environment& m_environment;
    QString m_selected;
    WizardMode m_wizardMode = WizardMode::Edit;
};

/// The output folder of a clone: below "fampages" when that is the source's own folder, otherwise beside the source's.
/// Both "/" and the "\" of earlier releases separate folders.
QString FolderOfClone(const QString& sourceFolder, const QString& name);

} // namespace stemwright
