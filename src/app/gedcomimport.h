// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"

class QWidget;

namespace stemwright
{

/// Asks for a GEDCOM file, imports it into the open family file and shows the report. True when anything changed.
bool ImportGedcomInto(FamilyFile& file, Environment& environment, QWidget& parent);

} // namespace stemwright
