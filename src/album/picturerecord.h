// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagefile.h"
#include "store/engine/connection.h"

#include <QtCore/QByteArray>
#include <QtCore/QSize>
#include <QtCore/QString>

#include <optional>
#include <vector>

/// Picture records as rows of the family file: reading and writing one, listing all. A null text is Null in the file.
/// Nothing here asks the user. Failures: Error for a picture that is not there or a value that does not fit,
/// SQLite::Exception for the family file. Stands on the connection.
namespace stemwright
{

/// Where the names of the persons stand on the picture's page.
enum class NamePlacement { Above, Left };

/// What marks a person in the picture.
enum class PointerTool { Arrow, Rectangle };

/// A record without its picture's and thumbnail's bytes.
struct PictureRecord {
    /// The picture's number; 0 for a record that the file does not hold yet.
    int id = 0;
    QString title;
    QString description;
    QString place;
    /// The date as text, and encoded so that it sorts (dates/encodeddate.h); never null when stored.
    QString date;
    QString encodedDate;
    NamePlacement names = NamePlacement::Above;
    PointerTool pointer = PointerTool::Arrow;
    /// The picture file's extension as it was given, its name without folder and extension, and its size in pixels;
    /// empty for a record without a picture.
    QString type;
    QString filename;
    QSize size;
    /// ISO date and time of the last change.
    QString modified;
};

/// A picture that is about to be stored. Null bytes take the picture, or its thumbnail alone, out of the record.
struct PictureContent {
    QByteArray picture;
    QByteArray thumbnail;
};

/// The record of a picture; no value when there is none with this number.
std::optional<PictureRecord> FindPictureRecord(Connection& connection, int pictureId);

/// The record of a picture, which must exist: throws Error otherwise.
PictureRecord LoadPictureRecord(Connection& connection, int pictureId);

/// All records by picture number, with what lists show: without description, file type and size.
std::vector<PictureRecord> ListPictures(Connection& connection);

/// The bytes of a record's picture or of its thumbnail; empty when it has none. Throws Error for a value that is far
/// too large to be a picture of ours.
QByteArray StoredPicture(Connection& connection, int pictureId);
QByteArray StoredThumbnail(Connection& connection, int pictureId);

/// The places of all pictures, each once, for the user to choose from.
QStringList KnownPlaces(Connection& connection);

/// Inserts a record that has no number yet, or updates the one that has, and returns its number. `content` stays as it
/// is in the file when not given. Must be called within a transaction.
int WritePictureRecord(Connection& connection, const PictureRecord& record,
                       const std::optional<PictureContent>& content);

/// Deletes a record with its marks, in one transaction.
void RemovePictureRecord(Connection& connection, int pictureId);

} // namespace stemwright
