// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagestructure.h"

#include <QtCore/QByteArray>
#include <QtCore/QSize>

/// The part of picture files that needs Qt Gui's image readers. It is a library of its own, loaded when the first
/// picture is looked at: Qt Gui brings some thirty libraries along, which would double the start of every command that
/// has nothing to do with pictures. Fails with Error when the library is missing. Stands on the structure of image
/// files.
namespace stemwright
{

/// What the library offers, reached through its one exported function.
struct ImageDecoder {
    /// How the picture lies in its file, as EXIF (CIPA DC-008) numbers it: 1 is upright, 2 to 4 are mirrored or stand
    /// on their heads, 5 to 8 lie on their sides, so that width and height change places when they are shown.
    int (*orientation)(const QByteArray& bytes, ImageFormat format);
    /// The first frame, decoded no larger than needed and scaled smoothly to `size` as it lies in the file, then turned
    /// upright: the bytes of a Windows bitmap file of 24 bits a pixel, transparent places white. Empty when it
    /// cannot be decoded.
    QByteArray (*scaledBitmap)(const QByteArray& bytes, ImageFormat format, QSize size);
};

/// Loads the library at the first call. Throws Error.
const ImageDecoder& LoadedImageDecoder();

} // namespace stemwright
