// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts of upgrades, word for word. Paths are shown with the platform's own separators.
namespace stemwright::upgrademessages
{

/// The title of messages and progress displays.
inline const QString upgrading = QStringLiteral("Upgrading Family File");
inline const QString readingFile = QStringLiteral("Reading your family file");
inline const QString movingPictures = QStringLiteral("Moving your pictures into the family file");
inline const QString writingFile = QStringLiteral("Writing the upgraded family file");

/// Asks whether a file of an earlier release is backed up before its upgrade, upgraded without, or not opened.
Message BeforeUpgrade(const QString& path);
Message BackedUp(const QString& backup);
/// The backup that is made before the pictures move into the family file.
Message SecondBackup(const QString& backup);
/// The picture files that were looked for in vain, as the family file named them.
Message PicturesNotFound(const QStringList& files);
/// What is in the backup alone, since family files have no place for it.
Message LeftInBackup(const QStringList& things, const QString& backup);

} // namespace stemwright::upgrademessages
