// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that pictures and person marks show, word for word.
namespace stemwright::albummessages
{

// Choosing a picture file.
FileRequest OpenPicture();
/// Above 200 kilobytes.
Message PictureRefused(qint64 kilobytes);
/// Above 120 kilobytes: go on without a thumbnail?
Message PictureWithoutThumbnail(qint64 kilobytes);
/// A file that is no fit picture, with the reason as whole sentences.
Message CannotUsePicture(const QString& path, const QString& reason);

// Deleting and finding records.
Message ConfirmRecordDelete();
InputRequest SearchByPictureId();
Message IllegalPictureId();
Message NoSuchPicture(const QString& queryName, const QString& number);

// Marks.
Message ConfirmDuplicateEntry();
Message ChangePointerToArrow();

inline const QString enterNewName = QStringLiteral("To enter a new name, type here:");
inline const QString editTheName = QStringLiteral("Edit the name here:");
inline const QString dragThePointer = QStringLiteral("To move the pointer, drag and drop it");

/// Leaving a record whose changes are not applied.
Message SavingTheChanges();

/// Writing a picture out of the album over a file that exists.
Message ReplaceFile(const QString& path);

// The progress display of CreateAllThumbnails().
inline const QString creatingThumbnails = QStringLiteral("Creating Thumbnails");
inline const QString creatingThumbnailsCaption = QStringLiteral("Creating thumbnails of your pictures");

} // namespace stemwright::albummessages
