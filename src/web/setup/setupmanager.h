// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"
#include "web/setup/setup.h"

#include <QtCore/QString>

/// The setups of a family file: listed, made, cloned, renamed and deleted, with their trees and items. Stands on
/// setup.h and on the default rows and the managing of named rows of store/file.
namespace stemwright
{

/// How the wizard was called: for a setup that was just made, or for one that stood there.
enum class WizardMode { New, Edit };

/// New setups are as the user's model says (setupmodel.h). Clones get everything that the other setup holds but its
/// output folder.
class SetupManager : public NamedRowManager
{
public:
    SetupManager(Connection& connection, Environment& environment);

    /// Chooses a setup and calls for it to be edited. Throws Error when there is none with this name.
    void select(const QString& name) { selectRow(name); }

    WizardMode wizardMode() const { return isNew() ? WizardMode::New : WizardMode::Edit; }

private:
    void writeNew(const QString& name) override;
    void writeClone(const NamedRow& source, const QString& name) override;
    void giveName(const NamedRow& setup, const QString& name) override;
    void erase(const NamedRow& setup) override;
    void requireUsableName(const QString& name) const override;
};

/// The output folder of a clone: below "fampages" when that is the source's own folder, otherwise beside the source's.
/// Both "/" and the "\" of earlier releases separate folders.
QString FolderOfClone(const QString& sourceFolder, const QString& name);

} // namespace stemwright
