// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"

#include <QtCore/QString>

/// What the user does with whole family files: the questions, the work, and what is remembered for the next start. Each
/// procedure reports a failure once and returns false; false is also its answer when the user says no. Stands on
/// familyfile.h.
namespace stemwright
{

/// Creates a family file, after asking when a file stands in its place, and remembers it as the last one.
bool CreateNewFamilyFile(FamilyFile& file, const QString& path, Environment& environment);

/// Opens a family file and remembers it as the last one.
bool OpenAlbum(FamilyFile& file, const QString& path, Environment& environment);

/// Opens the sample family file after backing it up, and remembers it as the last one. Where the application's folder
/// cannot be written, that is a copy in the user's own folder, made when it is opened first.
bool OpenTestDB(FamilyFile& file, Environment& environment);

/// The family file that an argument of the program names: the argument without its first blank, or as it stands where
/// only a file of that name exists.
QString FamilyFileOfArgument(const QString& argument);

/// The family files last created or opened that still exist, the latest first, ten at most.
QStringList RecentFamilyFiles(const Settings& settings);

/// Copies the open family file to `path`, after asking when a file stands there. The open file stays the open file.
bool SaveFamilyFileAs(FamilyFile& file, const QString& path, Environment& environment);

} // namespace stemwright
