// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagefile.h"

#include "album/imagemetadata.h"
#include "album/testpictures.h"
#include "album/thumbnail.h"
#include "base/error.h"
#include "base/files.h"
#include "support/testworld.h"

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

/// The error of a refused picture; empty for one that is taken and can be decoded.
QString Refusal(const QByteArray& bytes)
{
    return ErrorOf([&bytes] { MakeThumbnail(ImageFile(bytes)); });
}

QByteArray CornersJpeg()
{
    return JpegOf(CornersPicture({160, 120}));
}

} // namespace

TEST(ImageFile, RefusesWhatIsNoWholePicture)
{
    const QByteArray jpeg = CornersJpeg();
    const QByteArray gif = AnimatedGif();
    QByteArray restartedMarker = jpeg;
    restartedMarker.replace(2, 2, "\xFF\xD8");
    const std::vector<std::pair<QByteArray, QString>> pictures = {
        {{}, "The file is empty."},
        {"<svg xmlns='http://www.w3.org/2000/svg'/>", "It is neither a GIF nor a JPEG picture."},
        {"\x89PNG\r\n\x1A\n", "It is neither a GIF nor a JPEG picture."},
        {jpeg.left(3), "The picture is damaged or not complete."},
        {restartedMarker, "The picture is damaged or not complete."},
        {jpeg.left(jpeg.indexOf("\xFF\xDA")) + "\xFF\xD9", "The picture is damaged or not complete."},
        {gif.left(13), "The picture is damaged or not complete."},
        {gif.left(100) + QByteArray(400, '\x99'), "The picture is damaged or not complete."},
    };
    for (const auto& [bytes, reason] : pictures) {
        EXPECT_EQ(Refusal(bytes), reason) << bytes.left(12).toHex().toStdString() << ", " << bytes.size() << " bytes";
    }
}

TEST(ImageFile, NoticesEveryPlaceWhereAPictureMayBeCutOff)
{
    const QByteArray jpeg = CornersJpeg();
    for (qsizetype length = 0; length < jpeg.size(); length += 7) {
        EXPECT_FALSE(Refusal(jpeg.left(length)).isEmpty()) << length;
    }
    const QByteArray gif = AnimatedGif();
    int taken = 0;
    for (qsizetype length = 0; length < gif.size(); ++length) {
        taken += Refusal(gif.left(length)).isEmpty() ? 1 : 0;
    }
    // Behind the first frame, the extension that announces the second one, and the second one it is a whole picture.
    EXPECT_EQ(taken, 3);
}

TEST(ImageFile, SurvivesWhateverIsWrongInAByte)
{
    const QRegularExpression damage("^The picture (is damaged|claims to be)");
    for (const auto& [picture, signature] : {std::pair(CornersJpeg(), 3), std::pair(AnimatedGif(), 6)}) {
        int foreign = 0;
        int refused = 0;
        for (qsizetype position = 0; position < picture.size(); ++position) {
            QByteArray damaged = picture;
            damaged[position] = static_cast<char>(damaged[position] ^ 0xFF);
            const QString reason = Refusal(damaged);
            foreign += reason == u"It is neither a GIF nor a JPEG picture." ? 1 : 0;
            refused += damage.match(reason).hasMatch() ? 1 : 0;
            EXPECT_TRUE(reason.isEmpty() || reason.startsWith("It is neither") || damage.match(reason).hasMatch())
                << reason << ", byte " << position;
        }
        EXPECT_EQ(foreign, signature);
        // Most bytes are colours, which nobody can tell from right ones.
        EXPECT_GT(refused, picture.size() / 20);
    }
}

TEST(ImageFile, RefusesMorePixelsThanAnyoneHasAndEndlessScans)
{
    const QByteArray jpeg = CornersJpeg();
    EXPECT_TRUE(Refusal(ClaimSize(jpeg, 60'000, 10)).contains("60000 x 10 pixels"));
    EXPECT_TRUE(Refusal(ClaimSize(jpeg, 29'000, 29'000)).contains("more than the album takes"));
    QByteArray manyScans = jpeg.left(jpeg.size() - 2);
    for (int scan = 0; scan <= mostPasses; ++scan) {
        manyScans += QByteArray("\xFF\xDA\x00\x02", 4);
    }
    EXPECT_TRUE(Refusal(manyScans + "\xFF\xD9").contains("very long"));
}

TEST(ImageFile, ShowsTheFirstFrameOfAnAnimation)
{
    const ImageFile image(AnimatedGif());
    EXPECT_EQ(image.format(), ImageFormat::Gif);
    EXPECT_EQ(image.size(), QSize(160, 120));
    EXPECT_TRUE(Alike(QImage::fromData(image.bitmapOf({80, 60}), "BMP").pixel(40, 30), 0xFFFF0000));
}

/// The files turned*.jpg hold one picture as cameras store it that were held in each of the ways that EXIF numbers.
TEST(ImageFile, TurnsPicturesUpright)
{
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const ImageFile image(ReadWholeFile(TestData(QString("album/turned%1.jpg").arg(orientation))));
        EXPECT_EQ(image.size(), QSize(160, 96)) << orientation;
        const QImage thumbnail = QImage::fromData(MakeThumbnail(image), "BMP");
        ASSERT_EQ(thumbnail.size(), QSize(80, 48)) << orientation;
        const std::array<QPoint, 4> corners = {QPoint(8, 8), QPoint(72, 8), QPoint(72, 40), QPoint(8, 40)};
        for (std::size_t corner = 0; corner < corners.size(); ++corner) {
            EXPECT_TRUE(Alike(thumbnail.pixel(corners[corner]), cornerColours[corner])) << orientation << ' ' << corner;
        }
    }
}

TEST(ImageMetadata, IsAllThatGoesWithoutIt)
{
    const auto segment = [](char marker, const QByteArray& content) {
        return QByteArray("\xFF") + marker + QByteArray(1, '\0') + static_cast<char>(content.size() + 2) + content;
    };
    const QByteArray exif = segment('\xE1', "Exif SECRET");
    const QByteArray profile = segment('\xE2', "ICC_PROFILE kept");
    const QByteArray jpeg = CornersJpeg();
    const qsizetype behindStart = 2;
    const QByteArray plain = QByteArray(jpeg).insert(behindStart, profile + segment('\xEE', "Adobe kept"));
    const QByteArray telling =
        QByteArray(jpeg).insert(behindStart, segment('\xE1', "http://ns.adobe.com/xap/1.0/ SECRET") + profile + exif +
                                                 segment('\xEE', "Adobe kept") + segment('\xE2', "MPF SECRET") +
                                                 segment('\xED', "Photoshop 3.0 SECRET") + segment('\xFE', "SECRET"));
    const QByteArray gif = AnimatedGif();
    const qsizetype frame = gif.indexOf(QByteArray("\x21\xF9", 2));
    const QByteArray loop("\x21\xFF\x0BNETSCAPE2.0\x03\x01\0\0\0", 19);
    const QByteArray plainGif = QByteArray(gif).insert(frame, loop);
    const QByteArray remarks("\x21\xFE\x06SECRET\0\x21\xFF\x0BXMP DataXMP\x06SECRET\0", 32);
    const std::vector<std::pair<QByteArray, QByteArray>> cases = {
        {jpeg, jpeg},
        {telling, plain},
        {telling + jpeg.left(50) + "SECRET", plain},
        {telling.chopped(20), plain.chopped(20)},
        {gif, gif},
        {QByteArray(gif).insert(frame, remarks + loop) + "SECRET", plainGif},
        {"\x89PNG of an old album", "\x89PNG of an old album"},
        {{}, {}},
    };
    for (const auto& [bytes, bare] : cases) {
        EXPECT_EQ(WithoutMetadata(bytes), bare) << bytes.left(40).toStdString();
    }
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray turned = ReadWholeFile(TestData(QString("album/turned%1.jpg").arg(orientation)));
        const QByteArray bare = WithoutMetadata(QByteArray(turned).insert(turned.size() - 2, exif));
        EXPECT_FALSE(bare.contains("SECRET")) << orientation;
        EXPECT_TRUE(ImageFile(bare).bitmapOf({160, 96}) == ImageFile(turned).bitmapOf({160, 96})) << orientation;
    }
}

TEST(ImageFile, WantsNamesThatSayWhatTheContentIs)
{
    for (const char* extension : {"jpg", "JPG", "Jpeg", "jpe"}) {
        EXPECT_NO_THROW(RequireFittingExtension(extension, ImageFormat::Jpeg)) << extension;
        EXPECT_THROW(RequireFittingExtension(extension, ImageFormat::Gif), Error) << extension;
    }
    EXPECT_NO_THROW(RequireFittingExtension("GIF", ImageFormat::Gif));
    EXPECT_THROW(RequireFittingExtension(QString(), ImageFormat::Jpeg), Error);
}

} // namespace stemwright::test
