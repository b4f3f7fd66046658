// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/gallery.h"

#include <algorithm>

namespace stemwright
{

namespace
{

constexpr double largestRaggedHeight = 32'000;
constexpr long long largestHeight = 16'383;

} // namespace

int GalleryColumns(int width)
{
    return std::max(1, width / galleryCell);
}

bool FitsGallery(int pictures, int columns)
{
    const long long rows = pictures / columns + (pictures % columns == 0 ? 0 : 1);
    return static_cast<double>(pictures) / columns * galleryCell <= largestRaggedHeight &&
           rows * galleryCell <= largestHeight;
}

} // namespace stemwright
