// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/testpictures.h"

#include "base/files.h"
#include "support/testworld.h"

#include <QtCore/QBuffer>
#include <QtGui/QPainter>

#include <cstdlib>

namespace stemwright::test
{

namespace
{

QByteArray HighFirst(int value)
{
    return {std::initializer_list<char>{static_cast<char>(value >> 8), static_cast<char>(value & 0xFF)}.begin(), 2};
}

/// A JPEG segment behind the start of the image.
QByteArray WithSegment(const QByteArray& jpeg, char marker, const QByteArray& content)
{
    const int length = static_cast<int>(content.size()) + 2;
    return jpeg.left(2) + '\xFF' + marker + HighFirst(length) + content + jpeg.mid(2);
}

} // namespace

QImage CornersPicture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    const int x = size.width() / 2;
    const int y = size.height() / 2;
    QPainter painter(&image);
    painter.fillRect(0, 0, x, y, QColor(cornerColours[0]));
    painter.fillRect(x, 0, size.width() - x, y, QColor(cornerColours[1]));
    painter.fillRect(x, y, size.width() - x, size.height() - y, QColor(cornerColours[2]));
    painter.fillRect(0, y, x, size.height() - y, QColor(cornerColours[3]));
    return image;
}

QByteArray JpegOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 95);
    return bytes;
}

QByteArray JpegOfBytes(qsizetype bytes)
{
    QByteArray jpeg = JpegOf(CornersPicture({160, 120}));
    while (jpeg.size() < bytes) {
        const qsizetype room = bytes - jpeg.size();
        // A segment takes four bytes and what it holds; none may be left that is too small for another one.
        const qsizetype length = std::min<qsizetype>(room - 4, 60'000);
        jpeg = WithSegment(jpeg, '\xFE', QByteArray(room - 4 - length < 4 ? room - 4 : length, 'c'));
    }
    return jpeg;
}

QByteArray AnimatedGif()
{
    return ReadWholeFile(TestData("album/animated.gif"));
}

QByteArray ClaimSize(QByteArray jpeg, int width, int height)
{
    const qsizetype frame = jpeg.indexOf("\xFF\xC0");
    return jpeg.replace(frame + 5, 4, HighFirst(height) + HighFirst(width));
}

bool Alike(QRgb first, QRgb second)
{
    const int tolerance = 24;
    return std::abs(qRed(first) - qRed(second)) < tolerance && std::abs(qGreen(first) - qGreen(second)) < tolerance &&
           std::abs(qBlue(first) - qBlue(second)) < tolerance;
}

} // namespace stemwright::test
