// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

/// Where thumbnails stand in a gallery window. Sizes are in pixels. Nothing here fails.
namespace stemwright
{

/// The sides of the square in which a thumbnail is centred.
inline constexpr int galleryCell = 90;

/// How many cells fit beside each other, at least one.
int GalleryColumns(int width);

/// Whether so many pictures can be shown as thumbnails; the table of contents is there for longer lists.
bool FitsGallery(int pictures, int columns);

} // namespace stemwright
