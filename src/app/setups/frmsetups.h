// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "store/file/familyfile.h"

class QWidget;

namespace stemwright
{

/// Shows the list of web site setups, from which they are made, edited and run. `picker` chooses the heads of trees.
void ShowSetups(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent);

} // namespace stemwright
