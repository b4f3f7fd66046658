// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

/// What tells a family file from any other file. A family file may come from anyone, so nothing is believed: neither
/// its name nor what its schema would do. A file that is none fails with Error, which says what it is instead.
/// Stands on the schema.
namespace stemwright
{

/// Looks at the file from outside, before the engine touches it: it is there, it is a file of the engine, and it and
/// its folder can be written.
void RequireEngineFile(const QString& path);

/// Looks at what an open file holds: all tables with their columns, nothing that a family file does not have (a trigger
/// could undo what the user does), and the version of a release whose files need no upgrade.
void RequireFamilyFile(Connection& connection);

} // namespace stemwright
