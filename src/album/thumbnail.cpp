// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/thumbnail.h"

#include "album/messages.h"
#include "base/error.h"

#include <cmath>

namespace stemwright
{

namespace
{

/// A side that is scaled as another one is, and never vanishes.
int Follow(int side, int scaled, int original)
{
    return std::max(1, static_cast<int>(std::nearbyint(static_cast<double>(side) * scaled / original)));
}

void MeasureAndScale(Connection& connection, int pictureId, const QByteArray& bytes)
{
    const ImageFile image(bytes);
    Statement update = connection.prepare(QStringLiteral(
        "UPDATE AlbumTOC SET PicWidth = ?2, PicHeight = ?3, Thumb = coalesce(?4, Thumb) WHERE PicId = ?1"));
    update.bind(1, pictureId).bind(2, image.size().width()).bind(3, image.size().height());
    update.bindBytes(4, StoredThumbnailOf(image)).run();
}

std::vector<int> PicturesOf(Connection& connection)
{
    std::vector<int> ids;
    Statement select =
        connection.prepare(QStringLiteral("SELECT PicId FROM AlbumTOC WHERE Picture IS NOT NULL ORDER BY PicId"));
    while (select.step()) {
        ids.push_back(select.integer(0));
    }
    return ids;
}

} // namespace

qint64 SizeInKilobytes(qint64 bytes)
{
    return static_cast<qint64>(std::nearbyint(static_cast<double>(bytes) / 1024));
}

QSize ThumbnailSize(QSize picture)
{
    const int width = picture.width();
    const int height = picture.height();
    if (width <= thumbnailBox && height <= thumbnailBox) {
        return picture;
    }
    return width <= height ? QSize(Follow(width, thumbnailBox, height), thumbnailBox)
                           : QSize(thumbnailBox, Follow(height, thumbnailBox, width));
}

QByteArray MakeThumbnail(const ImageFile& image)
{
    return image.bitmapOf(ThumbnailSize(image.size()));
}

QByteArray StoredThumbnailOf(const ImageFile& image)
{
    return SizeInKilobytes(image.bytes().size()) <= largestWithThumbnail ? MakeThumbnail(image) : QByteArray();
}

bool CreateAllThumbnails(Connection& connection, Talk& talk)
{
    const std::vector<int> ids = PicturesOf(connection);
    if (ids.empty()) {
        return true;
    }
    const auto progress = talk.progress(albummessages::creatingThumbnails, albummessages::creatingThumbnailsCaption);
    Transaction transaction(connection);
    Statement select = connection.prepare(QStringLiteral("SELECT Picture FROM AlbumTOC WHERE PicId = ?1"));
    for (std::size_t done = 0; done < ids.size(); ++done) {
        progress->setPercent(static_cast<int>(100 * done / ids.size()));
        if (progress->stopWished()) {
            return false;
        }
        select.bind(1, ids[done]).step();
        const QByteArray bytes = select.bytes(0);
        select.reset();
        try {
            MeasureAndScale(connection, ids[done], bytes);
        } catch (const Error&) {
            // It stays in the album without a thumbnail, as the user has always had it.
            continue;
        }
    }
    progress->setPercent(100);
    transaction.commit();
    return true;
}

} // namespace stemwright
