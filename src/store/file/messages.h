// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that creating, opening and copying family files shows, word for word. Paths are shown with the platform's
/// own separators.
namespace stemwright::storemessages
{

/// The file that was just created does not open.
Message CouldNotReopen();
Message CannotCreate(const QString& path, const QString& reason);
Message CannotOpen(const QString& path, const QString& reason);
Message CannotSaveAs(const QString& path, const QString& reason);
/// Why changes were not saved, with what has become of them.
QString ChangesKept(const QString& reason);
/// What lay beside a family file and belongs to another file now has these names.
Message JournalsSetAside(const QString& path, const QStringList& aside);
/// A backup that holds more individuals than the family file was not overwritten.
Message LargerBackupKept(const QString& backup, const QString& kept);
/// Asks whether a file that stands in the place of a new one may go.
Message ReplaceExisting(const QString& path);
/// What to do next with a family file that was just created.
Message CreationConfirmation();
QString DontShowAgain();
/// The sample family file was copied before it is opened.
Message OpeningTestFile(const QString& path, const QString& backup);
Message NoTestFile(const QString& path);
FileRequest ChooseNewFamilyFile();
FileRequest ChooseFamilyFile();
FileRequest ChooseCopy();

} // namespace stemwright::storemessages
