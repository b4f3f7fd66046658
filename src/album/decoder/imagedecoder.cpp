// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagedecoder.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

namespace stemwright
{

namespace
{

/// Reads upright images of one format from bytes; whatever else the reader's plugins understand is left alone.
class BytesReader
{
public:
    BytesReader(const QByteArray& bytes, ImageFormat format)
    {
        m_buffer.setData(bytes);
        m_buffer.open(QIODevice::ReadOnly);
        m_reader.setDevice(&m_buffer);
        m_reader.setFormat(format == ImageFormat::Gif ? "gif" : "jpeg");
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setAutoTransform(true);
    }

    QImageReader* operator->() { return &m_reader; }

private:
    QBuffer m_buffer;
    QImageReader m_reader;
};

QImage OnWhite(const QImage& image)
{
    if (!image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_RGB32);
    }
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(0, 0, image);
    return flat;
}

int Orientation(const QByteArray& bytes, ImageFormat format)
{
    switch (BytesReader(bytes, format)->transformation()) {
    case QImageIOHandler::TransformationMirror:
        return 2;
    case QImageIOHandler::TransformationRotate180:
        return 3;
    case QImageIOHandler::TransformationFlip:
        return 4;
    case QImageIOHandler::TransformationFlipAndRotate90:
        return 5;
    case QImageIOHandler::TransformationRotate90:
        return 6;
    case QImageIOHandler::TransformationMirrorAndRotate90:
        return 7;
    case QImageIOHandler::TransformationRotate270:
        return 8;
    default:
        return 1;
    }
}

QByteArray ScaledBitmap(const QByteArray& bytes, ImageFormat format, QSize size)
{
    BytesReader reader(bytes, format);
    reader->setScaledSize(size);
    const QImage image = reader->read();
    if (image.isNull()) {
        return {};
    }
    QByteArray bitmap;
    QBuffer buffer(&bitmap);
    buffer.open(QIODevice::WriteOnly);
    OnWhite(image).save(&buffer, "BMP");
    return bitmap;
}

} // namespace

} // namespace stemwright

/// The library's one entry point.
extern "C" Q_DECL_EXPORT const stemwright::ImageDecoder* stemwrightImageDecoder()
{
    static const stemwright::ImageDecoder decoder{&stemwright::Orientation, &stemwright::ScaledBitmap};
    return &decoder;
}
