// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pictures/albumpages.h"

#include "web/pictures/personpictures.h"
#include "web/pictures/picturelistpage.h"
#include "web/pictures/picturepage.h"

#include <numeric>

namespace stemwright
{

std::vector<int> WriteAlbumPages(const SiteRun& run, Connection& connection, StepProgress& progress)
{
    std::vector<int> lostTexts;
    const std::vector<PublishedPicture>& pictures = run.pictures.all();
    if (pictures.empty()) {
        return lostTexts;
    }
    PictureFilesWriter filesWriter(run, connection);
    PicturePageWriter pageWriter(run, connection);
    PictureListPage list(run);
    std::vector<std::string> cells;
    for (const PublishedPicture& picture : pictures) {
        progress.report([&picture] { return ' ' + std::to_string(picture.id) + ' ' + picture.title; });
        const PictureFiles files = filesWriter.write(picture);
        const bool keepsDescription = pageWriter.write(picture, files);
        if (picture.lostText || !keepsDescription) {
            lostTexts.push_back(picture.id);
        }
        list.add(picture);
        cells.push_back(GalleryCell(picture, files));
    }
    list.finish();
    GalleryWriter galleries(run);
    std::vector<std::uint32_t> all(pictures.size());
    std::iota(all.begin(), all.end(), 0U);
    galleries.write(AllPictures(), cells, all);
    WritePersonPictures(run, galleries, cells);
    return lostTexts;
}

} // namespace stemwright
