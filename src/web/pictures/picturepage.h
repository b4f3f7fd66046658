// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/personmarks.h"
#include "web/html/pagefile.h"
#include "web/html/templates.h"
#include "web/pictures/picturefiles.h"

/// The page of one picture: the picture with the marks of its persons, their names, and what the album says about it.
/// What the marks do when a name is pointed at is in html/picpage.js. Throws Error when a page cannot be written.
/// Stands on the run.
namespace stemwright
{

class PicturePageWriter
{
public:
    PicturePageWriter(const SiteRun& run, Connection& connection);

    /// Writes a picture's page. Hidden persons are left out with name, mark and link. False when the picture's
    /// description was left out because it names a hidden person.
    bool write(const PublishedPicture& picture, const PictureFiles& files);

private:
    /// A mark as the page shows it.
    struct ShownMark {
        /// HTML: the name.
        std::string name;
        /// The individual with a personal page to whom the name leads; 0 for nobody.
        int linkedId = 0;
        std::optional<MarkPlace> place;
    };

    std::vector<ShownMark> shownMarks(const std::vector<PersonMark>& marks) const;
    std::string nameOf(const PersonMark& mark, std::optional<TreePosition> person) const;
    bool isShown(const PersonMark& mark) const;
    void writeNamesLeft(const std::vector<ShownMark>& marks, PointerTool pointer);
    void writeNamesAbove(const std::vector<ShownMark>& marks, PointerTool pointer);
    void writeNameCell(const ShownMark& mark, std::size_t number, PointerTool pointer, NamePlacement placement);
    void appendPersonalPageLink(const ShownMark& mark, std::size_t number);
    void writeHint(PointerTool pointer);
    void writeLayers(const std::vector<ShownMark>& marks, PointerTool pointer);
    void writeRectangle(const ShownMark& mark, std::size_t number);
    void writeBottom(const PublishedPicture& picture, const PictureFiles& files, const std::string& title,
                     std::string_view description);

    std::string& page() { return m_file.bytes(); }

    const SiteRun& m_run;
    PictureMarks m_marks;
    PreparedTemplate m_rectangleTop;
    PreparedTemplate m_arrowTop;
    PreparedTemplate m_bottomNamesLeft;
    PreparedTemplate m_bottomNamesAbove;
    PageFile m_file;
};

} // namespace stemwright
