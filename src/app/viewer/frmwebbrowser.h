// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/viewer/siteview.h"
#include "base/environment.h"

class QWidget;

namespace stemwright
{

/// Shows a site until the window is closed. Nothing but its files is shown or loaded: whatever leads elsewhere is
/// opened by the system's browser. Where the viewer is not installed, the system's browser shows the site itself.
void ShowWebBrowser(const LocalSite& site, Environment& environment, QWidget* parent);

} // namespace stemwright
