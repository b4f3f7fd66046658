// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

#include <QtCore/QString>

/// The model for new setups, which a user makes of one of his setups: its values, items and emblem, but not its name,
/// output folder and trees. It is kept with the user's settings, so it serves all family files. Stands on
/// setupediting.h and itemselection.h.
namespace stemwright
{

/// Makes a setup the model for new ones. False, after the user was told, when that fails; the model is then as before.
bool SaveAsModel(Connection& connection, const QString& setupName, Environment& environment);

/// Gives a new setup what the model says. Facts are recognised by their names, since their tags differ from family file
/// to family file; those that this one does not have are left out. A model that is missing or damaged, and one that
/// this release cannot follow, leaves the setup as it is. Fails as the engine fails.
void FollowModel(Connection& connection, const QString& setupName, Environment& environment);

} // namespace stemwright
