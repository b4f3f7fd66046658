// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/applicationfolder.h"
#include "base/talk.h"

#include <QtCore/QStringList>

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

/// What a user should know of a folder before pages are built, in whole sentences: why no site may be written there,
/// that the system does not let him write there, or that other files than those of a site would be deleted there. No
/// value when nothing is known against it.
std::optional<QString> WarningOfOutputFolder(const QString& folder, const ProtectedPlaces& places);

/// A folder that the user agreed to.
struct OutputFolder {
    QString path;
    /// The full paths of the files in it that may be deleted: not hidden ones, and no folders.
    QStringList oldFiles;
};

/// Agrees on the folder: creates one that does not exist, and makes sure that the files of one that does may be
/// deleted, each after asking. No value when the user would rather not, or was told that it cannot be created. Throws
/// Error for a folder that is no place for a site.
std::optional<OutputFolder> PrepareOutputFolder(const QString& folder, const ProtectedPlaces& places, Talk& talk);

/// Deletes the old files, index.html before all others, so that what is left never passes for a site. Throws Error when
/// one cannot be deleted.
void EmptyOutputFolder(const OutputFolder& folder);

} // namespace stemwright
