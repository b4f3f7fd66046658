// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/run/publishedpictures.h"

#include <array>

/// Lists of pictures as tables: of all pictures of the site, whose page is here, and of one person's. Throws Error when
/// a page cannot be written. Stands on the run.
namespace stemwright
{

/// The tags that open the cells of a row: number, date, place, title and link.
using PictureRowTags = std::array<std::string_view, 5>;

/// Writes a row of a list of pictures.
void WritePictureRow(PageFile& file, const PublishedPicture& picture, const PictureRowTags& tags);

/// "ListOfPics.html": the list of all pictures. Rows are added in the order of the pictures.
class PictureListPage
{
public:
    explicit PictureListPage(const SiteRun& run);

    void add(const PublishedPicture& picture);

    void finish();

private:
    PageFile m_file;
};

} // namespace stemwright
