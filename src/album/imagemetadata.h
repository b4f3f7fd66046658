// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>

/// What picture files tell beside their pictures: who is on them, where and when they were taken, what was cut away.
/// Stands on the structure of image files and on the image decoder.
namespace stemwright
{

/// The bytes of a GIF or JPEG file without its metadata (ImageStructure). The picture itself stays bit by bit as it is;
/// of EXIF (CIPA DC-008) its orientation is kept, without which it would be shown lying on its side. A damaged picture
/// loses what stands before the damage; the bytes of other files come back as they are. Throws Error when the image
/// decoder is missing.
QByteArray WithoutMetadata(const QByteArray& bytes);

} // namespace stemwright
