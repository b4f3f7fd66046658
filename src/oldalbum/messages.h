// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "oldalbum/albumimportreport.h"

#include <exception>

/// The texts of the import of old albums and of name matching, word for word: messages first, then the reasons that
/// errors carry.
namespace stemwright::oldalbummessages
{

// The import.
FileRequest SelectOldAlbum();
QString ImportExplanation();
Message NoFamilyFile();
Message EmptyAlbum();
Message NoIndividuals();
/// Names of an earlier import were not matched yet, this many.
Message NamesWouldBeLost(qint64 names);
/// They stay after all.
Message NamesKept(qint64 names);
Message DuplicatePicture(const QString& filename);
/// What did not come into the family file whole.
Message NotWhole(const AlbumImportReport& report);
Message ImportFailed(const QString& path, const std::exception& exception);

inline const QString importProgress = QStringLiteral("Import Progress");
inline const QString importingAlbum = QStringLiteral("Importing pre-V2 photo album");

// Name matching.
QString OldNamesNote();
QString ChooseMatch();
QString NoMatches(const QString& oldName, bool hasIndex);
Message StopMatching();
Message MatchingCompleted();
Message MatchingFailed(const QString& oldName, const std::exception& exception);

QString NoOldAlbum();
inline const QString tooLargeFile = QStringLiteral("The file is too large to be a picture of an album.");
/// A text that was cut: what it is, and its beginning.
QString CutText(const QString& what, const QString& text);

} // namespace stemwright::oldalbummessages
