// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "gedcom/importreport.h"
#include "store/file/familyfile.h"

/// What the user's command to import a GEDCOM file does around the import itself. Stands on the importer and the store.
namespace stemwright
{

/// Asks for a GEDCOM file, beginning in the folder of the last one. No value when the user cancels.
std::optional<QString> ChooseGedcomFile(Environment& environment);

/// Imports the GEDCOM file at `path` into the open family file. A family file that holds a tree already is backed up
/// first, and when that came from another GEDCOM file the user is asked whether to go on. The note of what was imported
/// and when is a part of the same transaction as the tree. True when the import ran to its end; otherwise the user was
/// told why, or chose not to go on, and `report` says whether anything was changed.
bool ImportGedcomFile(FamilyFile& file, const QString& path, Environment& environment, ImportReport& report);

} // namespace stemwright
