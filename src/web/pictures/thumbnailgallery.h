// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/html/templates.h"
#include "web/pictures/picturefiles.h"

/// Galleries: pages of thumbnails that lead to the pictures' pages. Throws Error when a page cannot be written. Stands
/// on the run.
namespace stemwright
{

/// Whose gallery it is: what stands after "Thumbs" in its pages' names, its title (HTML), and the list beside it.
struct GalleryOwner {
    std::string name;
    std::string title;
    std::string listPage;
};

/// The gallery of all pictures of the site, and that of an individual.
GalleryOwner AllPictures();
GalleryOwner PicturesOf(const SiteRun& run, TreePosition person);

/// The cell of a picture, the same in all galleries. A picture without a thumbnail is shown itself, in the thumbnail's
/// size.
std::string GalleryCell(const PublishedPicture& picture, const PictureFiles& files);

class GalleryWriter
{
public:
    explicit GalleryWriter(const SiteRun& run);

    /// Writes all pages of a gallery: the cells of these pictures, in this order.
    void write(const GalleryOwner& owner, const std::vector<std::string>& cells,
               std::span<const std::uint32_t> pictures);

private:
    void writeThumbnails(const std::vector<std::string>& cells, std::span<const std::uint32_t> pictures);
    void writeNavigation(const GalleryOwner& owner, std::size_t page, std::size_t pages);

    const SiteRun& m_run;
    PreparedTemplate m_top;
    PageFile m_file;
};

} // namespace stemwright
