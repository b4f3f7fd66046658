// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "store/file/familyfile.h"

class QWidget;

namespace stemwright
{

/// Lists the names that came with an old album, and matches them with the individuals of the tree when the user wants
/// that: all of them from the selected one on.
void ShowOldNames(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent);

} // namespace stemwright
