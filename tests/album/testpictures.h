// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagefile.h"

#include <QtCore/QByteArray>
#include <QtGui/QImage>

namespace stemwright::test
{

/// The corners' colours of cornersPicture(), clockwise from the top left.
inline constexpr std::array<QRgb, 4> cornerColours = {0xFFFF0000, 0xFF00FF00, 0xFFFFFFFF, 0xFF0000FF};

/// A picture with a quarter of each of these colours.
QImage CornersPicture(QSize size);

QByteArray JpegOf(const QImage& image);

/// A JPEG of a wanted size in bytes, filled up by comments.
QByteArray JpegOfBytes(qsizetype bytes);

/// An animation whose first frame (160 x 120) is red and whose second is blue.
QByteArray AnimatedGif();

/// Changes the size that a JPEG claims.
QByteArray ClaimSize(QByteArray jpeg, int width, int height);

/// Whether two colours are the same but for what compression does to them.
bool Alike(QRgb first, QRgb second);

} // namespace stemwright::test
