// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagefile.h"
#include "base/talk.h"
#include "store/engine/connection.h"

#include <QtCore/QSize>

/// Thumbnails: which pictures get one, how large it is, its bytes. Sizes are in pixels. Pictures that cannot be decoded
/// are refused with Error. Stands on image files and the connection.
namespace stemwright
{

/// The sides of the square into which a thumbnail fits.
inline constexpr int thumbnailBox = 80;

/// A picture file above the first limit is refused, one above the second gets no thumbnail. In kilobytes.
inline constexpr int largestPicture = 200;
inline constexpr int largestWithThumbnail = 120;

/// Bytes as kilobytes of 1024, rounded to the nearest whole number, ties to even.
qint64 SizeInKilobytes(qint64 bytes);

/// The size of the thumbnail of a picture: its own where it fits into the box, else scaled to a longer side of 80.
QSize ThumbnailSize(QSize picture);

/// The thumbnail as the bytes of a Windows bitmap file (24 bits a pixel); transparent places become white.
QByteArray MakeThumbnail(const ImageFile& image);

/// The thumbnail with which a picture is stored: null for one that is too large to have any.
QByteArray StoredThumbnailOf(const ImageFile& image);

/// Gives every picture of the family file its pixel size and, where it is small enough, its thumbnail, in one
/// transaction and with a progress display. A picture that cannot be decoded is left as it is. False, with nothing
/// changed, when the user wished to stop.
bool CreateAllThumbnails(Connection& connection, Talk& talk);

} // namespace stemwright
