// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

class QWidget;

namespace stemwright
{

/// Shows the items that a setup includes beside those that it could include, and lets the user choose and arrange them.
/// They are written when OK is pressed; within a transaction of the caller, as a part of it. True when they were. A
/// failure is told.
bool EditItemsToInclude(Connection& connection, Environment& environment, const QString& setupName, QWidget* parent);

} // namespace stemwright
