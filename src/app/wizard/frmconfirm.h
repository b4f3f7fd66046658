// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"

class QWidget;

namespace stemwright
{

/// Tells that a site is finished and offers to show it, unless the user has switched that off. `index` is the full path
/// of its index.html.
void ConfirmWebPages(const QString& index, Environment& environment, QWidget* parent);

} // namespace stemwright
