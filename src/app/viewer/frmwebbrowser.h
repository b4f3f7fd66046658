// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"

class QWidget;

namespace stemwright
{

/// Shows a published site until the window is closed. `page` is the full path of its index.html. Nothing but the files
/// of its folder is shown or loaded: whatever leads elsewhere is opened by the system's browser. Where the viewer is
/// not installed, the system's browser shows the site itself.
void ShowWebBrowser(const QString& page, Environment& environment, QWidget* parent);

} // namespace stemwright
