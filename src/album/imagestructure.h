// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSize>

#include <optional>

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

struct ImageStructure {
    ImageFormat format = ImageFormat::Jpeg;
    /// Width and height in pixels as stored, before the picture is turned upright. For a GIF, its logical screen.
    QSize size;
    /// How often the decoder has to go over all pixels of the picture: the scans of a JPEG, 1 for a GIF.
    int passes = 1;
};

ImageStructure StructureOfImage(const QByteArray& bytes);

} // namespace stemwright
