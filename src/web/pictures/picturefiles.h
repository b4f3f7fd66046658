// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/picturerecord.h"
#include "web/run/siterun.h"

/// Copies pictures and thumbnails into the site, and reads with them what only a picture's own page needs. Pictures are
/// copied byte for byte, but without their metadata if the site hides persons: cameras and other programs write there
/// who is on a picture, and where it was taken. One query a picture, prepared once; only one picture is in memory,
/// and of a very large one that is copied as it is only a piece.
/// Throws Error when a file cannot be written; reading fails as the engine fails. Stands on the run and on the album.
namespace stemwright
{

/// A picture whose files are in the site; texts are UTF-8.
struct PictureFiles {
    /// The picture's file name: "Pic5.jpg".
    std::string picture;
    /// The thumbnail's: "Thumb_5.bmp"; empty for a picture without one.
    std::string thumbnail;
    std::string description;
    /// When the record was last changed: "2 May 2003".
    std::string modified;
    NamePlacement names = NamePlacement::Above;
    PointerTool pointer = PointerTool::Arrow;
    /// In pixels, turned upright, which is how browsers show the file; empty when it is not known.
    QSize size;
};

class PictureFilesWriter
{
public:
    PictureFilesWriter(const SiteRun& run, Connection& connection);

    PictureFiles write(const PublishedPicture& picture);

private:
    const SiteRun& m_run;
    Connection& m_connection;
    Statement m_select;
};

/// The bytes of a picture file as the site may have them: those given, without metadata if the site hides persons.
QByteArray PublishableBytes(const SiteRun& run, const QByteArray& picture);

} // namespace stemwright
