// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagefile.h"

#include "album/imagedecoder.h"
#include "base/error.h"

namespace stemwright
{

namespace
{

QString NameOf(ImageFormat format)
{
    return format == ImageFormat::Gif ? QStringLiteral("GIF") : QStringLiteral("JPEG");
}

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
        constexpr int firstOnItsSide = 5;
        m_turned = LoadedImageDecoder().orientation(m_bytes, m_structure.format) >= firstOnItsSide;
    }
}

QSize ImageFile::size() const
{
    return m_turned ? m_structure.size.transposed() : m_structure.size;
}

QByteArray ImageFile::bitmapOf(QSize size) const
{
    // The decoder scales before it turns.
    QByteArray bitmap =
        LoadedImageDecoder().scaledBitmap(m_bytes, m_structure.format, m_turned ? size.transposed() : size);
    if (bitmap.isEmpty()) {
        throw Error(QStringLiteral("The picture is damaged or of an unusual kind: it cannot be decoded."));
    }
    return bitmap;
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
