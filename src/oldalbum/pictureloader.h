// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagefile.h"
#include "album/picturesearch.h"

/// Brings the picture files that an old album names into memory, fit for the family file. Fails with Error for a file
/// that is there but is no fit picture. Stands on the album's pictures.
namespace stemwright
{

struct LoadedPicture {
    QByteArray bytes;
    /// Null for a picture that is too large to have one.
    QByteArray thumbnail;
    QString type;
    QSize size;
};

class PictureLoader
{
public:
    /// Pictures are looked for where they are said to be, then in these folders.
    explicit PictureLoader(QStringList folders) : m_search(std::move(folders)) {}

    /// No value when there is no such file.
    std::optional<LoadedPicture> load(const QString& storedPath);

private:
    PictureSearch m_search;
};

} // namespace stemwright
