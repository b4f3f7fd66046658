// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "oldalbum/albumimportreport.h"
#include "store/file/familyfile.h"

class QWidget;

/// What the main window offers for albums of earlier releases. Nothing here fails; what goes wrong is told. Stands on
/// the import of old albums and the matching of their names.
namespace stemwright
{

/// Asks for an old album, imports it, and shows the names that came with it where they can be matched. The report says
/// what was changed.
AlbumImportReport ImportOldAlbum(FamilyFile& file, Environment& environment, const PersonPicker& picker,
                                 QWidget* parent);

/// Whether an old album has left names to match.
bool CanMatchOldNames(FamilyFile& file);

/// Shows the names and matches them.
void MatchOldNames(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent);

} // namespace stemwright
