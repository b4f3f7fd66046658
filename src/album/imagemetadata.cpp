// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/imagemetadata.h"

#include "album/imagedecoder.h"

namespace stemwright
{

namespace
{

constexpr int upright = 1;

/// The segment of a JPEG with EXIF's tag 0x0112 (SHORT, one value) as the only entry of the first directory.
QByteArray OrientationSegment(int orientation)
{
    QByteArray segment("\xFF\xE1\x00\x22"
                       "Exif\0\0"
                       "MM\0*\0\0\0\x08"
                       "\0\x01"
                       "\x01\x12\0\x03\0\0\0\x01\0?\0\0"
                       "\0\0\0\0",
                       36);
    segment[segment.indexOf('?')] = static_cast<char>(orientation);
    return segment;
}

} // namespace

QByteArray WithoutMetadata(const QByteArray& bytes)
{
    const std::vector<ByteRange> metadata = MetadataOfImage(bytes);
    if (metadata.empty()) {
        return bytes;
    }
    QByteArray bare;
    bare.reserve(bytes.size());
    qsizetype kept = 0;
    for (const ByteRange& range : metadata) {
        bare.append(QByteArrayView(bytes).sliced(kept, range.from - kept));
        kept = range.from + range.length;
    }
    bare.append(QByteArrayView(bytes).sliced(kept));
    const ImageFormat format = *ClaimedFormat(bytes);
    const int orientation = format == ImageFormat::Jpeg ? LoadedImageDecoder().orientation(bytes, format) : upright;
    constexpr int startOfImage = 2;
    return orientation == upright ? bare : bare.insert(startOfImage, OrientationSegment(orientation));
}

} // namespace stemwright
