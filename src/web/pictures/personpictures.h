// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/pictures/thumbnailgallery.h"

namespace stemwright
{

/// Writes the list of pictures and the gallery of every person of the site who is in more than one picture; who is in
/// one has links to that one instead. `cells` are the galleries' cells of all pictures. Throws Error when a page cannot
/// be written.
void WritePersonPictures(const SiteRun& run, GalleryWriter& galleries, const std::vector<std::string>& cells);

} // namespace stemwright
