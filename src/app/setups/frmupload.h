// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

class QWidget;

namespace stemwright
{

/// Shows what uploading a site would need to know and checks it; nothing is stored and nothing sent. A failure is told.
void ShowUpload(Connection& connection, Environment& environment, QWidget* parent);

} // namespace stemwright
