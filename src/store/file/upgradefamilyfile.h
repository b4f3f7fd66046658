// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/oldfamilyfile.h"

/// Bringing a family file of an earlier release to this one. Everything is done on copies beside the file, which takes
/// its place in one step when it is whole: until then, and whatever fails, the old file stays as it is. Stands on the
/// upgrade steps.
namespace stemwright
{

/// Asks whether to back the file up, where that is asked, and upgrades it. False when the user would rather not have
/// it opened, or stopped the work. Throws Error and SQLite::Exception.
bool UpgradeFamilyFile(const OldFamilyFile& old, const Environment& environment);

} // namespace stemwright
