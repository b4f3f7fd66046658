// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagestructure.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// A picture file that is fit for the album: a whole GIF or JPEG of a size that can be shown and marked, recognised by
/// its content and not by its name. Anything else is refused with Error before much memory is spent on it. Stands on
/// the image decoder, which needs no display.
namespace stemwright
{

/// The limits of a picture. A mark's place is a signed 16-bit number of pixels, and a picture of a family has nothing
/// like that many: what claims more is out to fill the memory.
inline constexpr int longestSide = 30'000;
inline constexpr qint64 mostPixels = 50'000'000;
/// The scans of a progressive JPEG; usual are ten.
inline constexpr int mostPasses = 100;

class ImageFile
{
public:
    /// Inspects the bytes of a picture file; throws Error.
    explicit ImageFile(QByteArray bytes);

    const QByteArray& bytes() const { return m_bytes; }

    ImageFormat format() const { return m_structure.format; }

    /// Width and height in pixels as every viewer shows the picture: turned upright as its camera says (EXIF
    /// orientation). Thumbnails and marks are in the same coordinates; the bytes stay as they are.
    QSize size() const;

    /// The picture (of an animation, the first frame) turned upright and scaled smoothly to exactly `size`, as the
    /// bytes of a Windows bitmap file; transparent places become white. A JPEG is decoded no larger than needed. Throws
    /// Error for a picture that cannot be decoded.
    QByteArray bitmapOf(QSize size) const;

private:
    QByteArray m_bytes;
    ImageStructure m_structure;
    /// Whether it lies on its side.
    bool m_turned = false;
};

/// The file extensions that a picture of the format may have, in lower case and without the dot; the usual one first.
const QStringList& ExtensionsOf(ImageFormat format);

/// Makes sure that the extension says what the content is, since browsers and other programs go by it. Throws Error.
void RequireFittingExtension(const QString& extension, ImageFormat format);

} // namespace stemwright
