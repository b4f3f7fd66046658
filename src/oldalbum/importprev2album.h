// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "oldalbum/albumimportreport.h"
#include "store/file/familyfile.h"

/// The user's command to import an album of an earlier release: the pictures become records of the open family file,
/// and the names of the persons on them wait there to be matched (oldalbum/namematching.h). Stands on the import and
/// the store.
namespace stemwright
{

/// Asks for an old album. No value when the user cancels.
std::optional<QString> ChooseOldAlbum(Talk& talk);

/// Imports the album at `path`, which is only read, in one transaction: killed or failed, it leaves the family file as
/// it was; ended by the user, it keeps what came before. True when the import ran to its end; otherwise the user was
/// told why or ended it, and `report` says what was changed. What did not come whole is told in one message.
bool ImportPreV2Album(FamilyFile& file, const QString& path, Environment& environment, AlbumImportReport& report);

} // namespace stemwright
