// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSize>

#include <optional>
#include <vector>

/// What the bytes of a picture file say about themselves, found by walking their structure without decoding a pixel.
/// The walk goes to the end of the picture, so that a file that was cut off is noticed, which decoders forgive; it
/// costs little more than reading the bytes. A file that is no whole GIF (87a, 89a) or JPEG (ISO 10918) is refused with
/// Error. Stands on the error type.
namespace stemwright
{

enum class ImageFormat { Gif, Jpeg };

/// What a file that begins with these bytes (6 are enough) claims to be; none when that is no picture. Nothing else of
/// it is looked at.
std::optional<ImageFormat> ClaimedFormat(const QByteArray& beginning);

/// A part of a file, in bytes.
struct ByteRange {
    qsizetype from = 0;
    qsizetype length = 0;
};

struct ImageStructure {
    ImageFormat format = ImageFormat::Jpeg;
    /// Width and height in pixels as stored, before the picture is turned upright. For a GIF, its logical screen.
    QSize size{};
    /// How often the decoder has to go over all pixels of the picture: the scans of a JPEG, 1 for a GIF.
    int passes = 1;
    /// What shows nothing of the picture, in the order of the file: comments, what cameras and other programs tell of
    /// it (EXIF, IPTC, XMP, smaller copies of the picture), and whatever follows its end.
    std::vector<ByteRange> metadata{};
};

ImageStructure StructureOfImage(const QByteArray& bytes);

/// The metadata as in ImageStructure; of a damaged picture those that stand before the damage, of other files none.
std::vector<ByteRange> MetadataOfImage(const QByteArray& bytes);

} // namespace stemwright
