// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "web/setup/setupediting.h"

class QWidget;

namespace stemwright
{

/// Shows the items that a setup includes beside those that it could include, and lets the user choose and arrange them.
/// When OK is pressed, they are a change of the editing. True when they are. A failure is told.
bool EditItemsToInclude(Connection& connection, Environment& environment, SetupEditing& editing, QWidget* parent);

} // namespace stemwright
