// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"
#include "web/run/stepprogress.h"

namespace stemwright
{

/// Writes all that a site shows of the album: the pictures and thumbnails as files, a page for each picture, the lists
/// and the galleries. A site without pictures gets nothing. Returns the numbers of the pictures of which a text was
/// left out because it names a hidden person. Throws Error when a file cannot be written; fails as the engine fails.
std::vector<int> WriteAlbumPages(const SiteRun& run, Connection& connection, StepProgress& progress);

} // namespace stemwright
