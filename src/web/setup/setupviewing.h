// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/engine/connection.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// Choosing a setup whose finished pages are to be viewed. What keeps them from being viewed is told once through Talk.
/// Stands on setup.h.
namespace stemwright
{

/// The names of all setups, to choose from. Without any, the user is told why nothing can be viewed.
QStringList SetupsToView(Connection& connection, Talk& talk);

/// The full path of the index.html in the output folder of this setup. No value, after the user was told, when that
/// file is not there or the name is unknown.
std::optional<QString> FindPagesToView(Connection& connection, const QString& setupName, Talk& talk);

} // namespace stemwright
