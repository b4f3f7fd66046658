// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"

class QWidget;

namespace stemwright
{

/// Shows what the open family file holds. A failure is told.
void ShowProperties(FamilyFile& file, Environment& environment, QWidget* parent);

} // namespace stemwright
