// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagefile.h"

#include "base/error.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>

namespace stemwright
{

namespace
{

QString NameOf(ImageFormat format)
{
    return format == ImageFormat::Gif ? QStringLiteral("GIF") : QStringLiteral("JPEG");
}

/// Reads upright images of one format from bytes; whatever else the reader's plugins understand is left alone.
class BytesReader
{
public:
    BytesReader(const QByteArray& bytes, ImageFormat format)
    {
        m_buffer.setData(bytes);
        m_buffer.open(QIODevice::ReadOnly);
        m_reader.setDevice(&m_buffer);
        m_reader.setFormat(NameOf(format).toLower().toLatin1());
        m_reader.setAutoDetectImageFormat(false);
        m_reader.setAutoTransform(true);
    }

    QImageReader* operator->() { return &m_reader; }

private:
    QBuffer m_buffer;
    QImageReader m_reader;
};

void RequireShowableSize(const ImageStructure& structure)
{
    const QSize size = structure.size;
    if (size.width() > longestSide || size.height() > longestSide ||
        qint64{size.width()} * size.height() > mostPixels) {
        throw Error(QStringLiteral("The picture claims to be %1 x %2 pixels large, which is more than the album takes.")
                        .arg(size.width())
                        .arg(size.height()));
    }
    if (structure.passes > mostPasses) {
        throw Error(QStringLiteral("The picture is built to take very long to decode."));
    }
}

} // namespace

ImageFile::ImageFile(QByteArray bytes) : m_bytes(std::move(bytes)), m_structure(StructureOfImage(m_bytes))
{
    RequireShowableSize(m_structure);
    if (m_structure.format == ImageFormat::Jpeg) {
        m_turned = BytesReader(m_bytes, m_structure.format)
                       ->transformation()
                       .testFlag(QImageIOHandler::TransformationRotate90);
    }
}

QSize ImageFile::size() const
{
    return m_turned ? m_structure.size.transposed() : m_structure.size;
}

QImage ImageFile::scaledTo(QSize size) const
{
    BytesReader reader(m_bytes, m_structure.format);
    // The reader scales before it turns.
    reader->setScaledSize(m_turned ? size.transposed() : size);
    QImage image = reader->read();
    if (image.isNull()) {
        throw Error(QStringLiteral("The picture is damaged or of an unusual kind: it cannot be decoded."));
    }
    return image;
}

const QStringList& ExtensionsOf(ImageFormat format)
{
    static const QStringList gif = {QStringLiteral("gif")};
    static const QStringList jpeg = {QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("jpe")};
    return format == ImageFormat::Gif ? gif : jpeg;
}

void RequireFittingExtension(const QString& extension, ImageFormat format)
{
    if (!ExtensionsOf(format).contains(extension, Qt::CaseInsensitive)) {
        throw Error(QStringLiteral("It is a %1 picture, but its name does not end in \".%2\". Please rename the file.")
                        .arg(NameOf(format), ExtensionsOf(format).first()));
    }
}

} // namespace stemwright
