// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/thumbnail.h"

#include "album/picturerecord.h"
#include "album/testpictures.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Thumbnail, FitsIntoTheBox)
{
    const std::vector<std::pair<QSize, QSize>> sizes = {
        {{60, 40}, {60, 40}},   {{80, 80}, {80, 80}},     {{160, 120}, {80, 60}}, {{120, 160}, {60, 80}},
        {{200, 200}, {80, 80}}, {{81, 10}, {80, 10}},     {{10, 81}, {10, 80}},   {{8000, 20}, {80, 1}},
        {{3, 9000}, {1, 80}},   {{4000, 3000}, {80, 60}},
    };
    for (const auto& [picture, thumbnail] : sizes) {
        EXPECT_EQ(ThumbnailSize(picture), thumbnail) << picture.width() << " x " << picture.height();
    }
}

TEST(Thumbnail, RoundsKilobytesWithTiesToEven)
{
    const std::vector<std::pair<qint64, qint64>> sizes = {
        {0, 0}, {512, 0}, {513, 1}, {1536, 2}, {2560, 2}, {120 * 1024 + 512, 120}, {121 * 1024 + 512, 122}};
    for (const auto& [bytes, kilobytes] : sizes) {
        EXPECT_EQ(SizeInKilobytes(bytes), kilobytes) << bytes;
    }
}

TEST(Thumbnail, IsABitmapOnWhite)
{
    // The emblem of new setups has a transparent ground.
    const TestWorld world;
    QFile emblem(world.application.file("graphics/tree.gif"));
    ASSERT_TRUE(emblem.open(QIODevice::ReadOnly));
    const QByteArray bytes = MakeThumbnail(ImageFile(emblem.readAll()));
    EXPECT_EQ(bytes.size(), 54 + 80 * 80 * 3);
    const QImage thumbnail = QImage::fromData(bytes, "BMP");
    EXPECT_EQ(thumbnail.size(), QSize(80, 80));
    EXPECT_EQ(thumbnail.pixel(0, 0), 0xFFFFFFFF);
    EXPECT_NE(thumbnail.pixel(40, 40), 0xFFFFFFFF);
}

TEST(Thumbnail, IsMadeForAWholeAlbum)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    const std::array<QByteArray, 4> pictures = {JpegOf(CornersPicture({160, 120})), JpegOfBytes(121 * 1024), "damaged",
                                                QByteArray()};
    for (const QByteArray& picture : pictures) {
        connection.prepare("INSERT INTO AlbumTOC (Picture) VALUES (?1)").bindBytes(1, picture).run();
    }
    world.talk.stopAt("Creating thumbnails");
    EXPECT_FALSE(CreateAllThumbnails(connection, world.talk));
    EXPECT_EQ(world.column("SELECT count(PicWidth) FROM AlbumTOC"), QStringList("0"));
    world.talk.stopAt({});
    EXPECT_TRUE(CreateAllThumbnails(connection, world.talk));
    Statement rows = connection.prepare("SELECT PicWidth, length(Thumb) FROM AlbumTOC ORDER BY PicId");
    const std::vector<std::pair<std::optional<int>, std::optional<int>>> expected = {
        {160, 54 + 80 * 60 * 3}, {160, std::nullopt}, {std::nullopt, std::nullopt}, {std::nullopt, std::nullopt}};
    for (const auto& [width, thumbnail] : expected) {
        ASSERT_TRUE(rows.step());
        EXPECT_EQ(rows.optionalInteger(0), width);
        EXPECT_EQ(rows.optionalInteger(1), thumbnail);
    }
    EXPECT_EQ(world.talk.captions(), QStringList(2, "Creating thumbnails of your pictures"));
    EXPECT_EQ(world.talk.percents().back(), 100);
}

} // namespace stemwright::test
