// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/setup/setupmanager.h"

class QWidget;

namespace stemwright
{

/// Shows the window that makes a setup, new or a clone of another one, until there is one; `source` is the one that is
/// proposed for cloning. False when it was cancelled.
bool AskForNewSetup(SetupManager& manager, const QString& source, QWidget& parent);

} // namespace stemwright
