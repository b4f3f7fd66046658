// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "oldalbum/albumimportreport.h"
#include "store/file/familyfile.h"

class QWidget;

namespace stemwright
{

/// Asks for an album of an earlier release and imports it into the open family file. The window stays until something
/// could be imported, or the user does not want to. The report says what came of it.
AlbumImportReport ShowAlbumImport(FamilyFile& file, Environment& environment, QWidget* parent);

} // namespace stemwright
