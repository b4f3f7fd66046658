// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts of the windows that belong to no procedure of the domain, and of what they can only learn themselves.
namespace stemwright::appmessages
{

// What is shown in the place of a picture.
QString NoPicture();
QString NoPictureYet();
QString EmptyList();
QString NoFile();
/// Where the window is, for the status bar: in a list without pictures, at one of them (counted from 1), or editing.
QString NoPictures();
QString PicturePosition(int picture, int pictures);
QString EditingRecord();

QString CannotShowPicture(const QString& reason);

// A record that does not open or cannot be written. Reasons are whole sentences.
Message CannotEdit(const QString& reason);
Message CannotApply(const QString& reason);
Message CannotEnterName(const QString& reason);
Message CannotDelete(const QString& reason);

/// Something went wrong that no procedure has told.
Message Failed(const QString& reason);

/// The file or folder that was typed to be opened does not exist.
Message NotThere(const QString& path);
/// What was dropped onto the window is no single picture file.
Message DropOnePicture();
/// Beside the name that is matched: the number of it among all, and on how many pictures it stands.
QString NameOfMany(std::size_t number, std::size_t names, std::size_t pictures);
QString NoPictureOfName();
/// How many records of an old album were imported.
QString AlbumImported(qint64 imported, qint64 inAlbum);

/// The list is too long for thumbnails.
QString TooLongForGallery();

// Web site setups and their sites.
QString SetupsExplanation();
QString ItemsToInclude();
/// What an item of this table belongs to: "Indi", "Fam" or "Fam2Child".
QString OriginOfItem(const QString& table);
QString SelectSetupExplanation();
/// What the settings for uploading are good for.
QString UploadExplanation();
/// The viewer lost its page.
QString PageCannotBeShown();
/// Nothing opens a page or an address.
Message CannotOpenAddress(const QString& address);

/// No browser shows the manual.
Message CannotOpenHelp(const QString& path);

QString Welcome();
QString VersionText();
QString Purpose();
QString Credits();

} // namespace stemwright::appmessages
