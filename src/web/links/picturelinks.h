// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

/// The names of the pages that show pictures, and the icon links that lead from a person to them. Stands on the run.
namespace stemwright
{

/// "PicPage5.html"
std::string PicturePageName(int pictureId);

/// "PicList42.html": the list of an individual's pictures, which who is in one picture only does not have.
std::string PictureListName(int individualId);

/// Appends the icon link to the person's picture or list of pictures, to stand after the name; nothing for a person
/// without pictures.
void AppendPictureLink(std::string& page, const SiteRun& run, TreePosition person);

/// Appends all icon links that stand wherever a person is named with links, but for those into the trees: pictures,
/// then mail and web addresses.
void AppendInfoLinks(std::string& page, const SiteRun& run, TreePosition person);

} // namespace stemwright
