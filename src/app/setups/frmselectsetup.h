// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

class QWidget;

namespace stemwright
{

/// Lets the user choose a setup and shows its finished site. Without any setup, or finished site, the user is told.
void ViewWebPages(Connection& connection, Environment& environment, QWidget* parent);

} // namespace stemwright
