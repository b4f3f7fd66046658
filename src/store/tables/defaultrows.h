// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

#include <QtCore/QString>

/// The rows that a table is born with, and that a new query or a new setup gets again under another name. They fail as
/// the engine fails. Stands on the schema and on the blob copies of album/.
namespace stemwright
{

/// The name that the first setup and the first query of a new file have.
inline const QString defaultSetupName = QStringLiteral("Default");
inline const QString initialQueryName = QStringLiteral("Initial");

/// The GenInfo row with the running application's version.
void WriteFileVersion(Connection& connection);

/// A picture list query that shows number, date, place, title and file name of every picture.
void WriteDefaultQuery(Connection& connection, const QString& queryName, const Clock& clock);

/// A web site setup's WebSiteInfo row. The emblem is the application's tree.gif; without that file it stays Null.
void WriteDefaultSetup(Connection& connection, const QString& setupName, const ApplicationFolder& application);

/// The five name items of a setup.
void WriteDefaultSelectedItems(Connection& connection, const QString& setupName);

/// One Outline tree without a head.
void WriteDefaultTreeHead(Connection& connection, const QString& setupName);

} // namespace stemwright
