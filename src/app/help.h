// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"

#include <QtCore/QString>

namespace stemwright
{

/// Opens a page of the manual, "index" for its first one, in the system's browser. Where that fails the user is told
/// where the manual lies.
void ShowHelp(Environment& environment, const QString& page);

/// The page about the window that is in front.
QString FrontHelpPage();

} // namespace stemwright
