// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/pictureloader.h"

#include "album/thumbnail.h"
#include "base/error.h"
#include "base/files.h"
#include "oldalbum/messages.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// Far above what anybody would have put into an album, and no burden for the family file.
constexpr qint64 largestFile = 64LL * 1024 * 1024;

/// The extension that the file has, or where that says something else than its content, the usual one: browsers go by
/// it.
QString TypeOf(const QString& extension, ImageFormat format)
{
    const QStringList& fitting = ExtensionsOf(format);
    return fitting.contains(extension, Qt::CaseInsensitive) ? extension : fitting.first();
}

} // namespace

std::optional<LoadedPicture> PictureLoader::load(const QString& storedPath)
{
    const QString path = m_search.find(storedPath);
    if (path.isEmpty()) {
        return std::nullopt;
    }
    const QFileInfo file(path);
    if (file.size() > largestFile) {
        throw Error(oldalbummessages::tooLargeFile);
    }
    const ImageFile image(ReadWholeFile(path));
    return LoadedPicture{image.bytes(), StoredThumbnailOf(image), TypeOf(file.suffix(), image.format()), image.size()};
}

} // namespace stemwright
