// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/applicationfolder.h"
#include "base/talk.h"

#include <optional>

/// The folder that a site is written into. Files of the user's are in danger here, so it is checked for being a
/// sensible place before anything is asked or deleted. Stands on base.
namespace stemwright
{

/// What must never be overwritten or emptied: full paths.
struct ProtectedPlaces {
    QString familyFile;
    QString homeFolder;
    QString applicationFolder;
    /// The part of the application's folder in which sites may stand all the same.
    QString pagesFolder;

    static ProtectedPlaces of(const QString& familyFile, const ApplicationFolder& application);
};

/// Why no site may be written into a folder, as a whole sentence; no value when one may.
std::optional<QString> WhyNoOutputFolder(const QString& folder, const ProtectedPlaces& places);

/// Makes the folder ready: creates it, or empties it of its files (not of hidden files, and not of folders), each after
/// asking. False when the user would rather not, or was told that it cannot be created. Throws Error, having changed
/// nothing, for a folder that is no place for a site, and when a file cannot be deleted.
bool PrepareOutputFolder(const QString& folder, const ProtectedPlaces& places, Talk& talk);

} // namespace stemwright
