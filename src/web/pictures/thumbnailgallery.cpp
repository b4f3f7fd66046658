// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pictures/thumbnailgallery.h"

#include "album/thumbnail.h"
#include "web/html/escape.h"
#include "web/links/picturelinks.h"

namespace stemwright
{

namespace
{

constexpr std::size_t thumbnailsOnPage = 24;
constexpr std::size_t thumbnailsInRow = 6;

std::string PageName(const GalleryOwner& owner, std::size_t page)
{
    return "Thumbs" + owner.name + std::to_string(page) + ".html";
}

/// The attributes of the image in a cell.
std::string ImageSource(const PictureFiles& files)
{
    if (!files.thumbnail.empty()) {
        return "SRC=\"" + files.thumbnail + '"';
    }
    std::string source = "SRC=\"" + files.picture + "\" LOADING=\"lazy\"";
    if (!files.size.isEmpty()) {
        const QSize size = ThumbnailSize(files.size);
        source += " WIDTH=\"" + std::to_string(size.width()) + "\" HEIGHT=\"" + std::to_string(size.height()) + '"';
    }
    return source;
}

} // namespace

GalleryOwner AllPictures()
{
    return {"_All_", "Thumbnail Gallery", "ListOfPics.html"};
}

GalleryOwner PicturesOf(const SiteRun& run, TreePosition person)
{
    const int id = run.tree.individualId(person);
    return {'_' + std::to_string(id) + '_', "Thumbnails of Pictures with " + std::string(run.names.displayHtml(person)),
            PictureListName(id)};
}

std::string GalleryCell(const PublishedPicture& picture, const PictureFiles& files)
{
    std::string cell("\t\t<TD ALIGN=\"CENTER\" VALIGN=\"TOP\" STYLE=\"border-width: 0px\"><A HREF=\"");
    cell.append(PicturePageName(picture.id)).append("\" TITLE=\"Click to view the picture page\"><IMG ");
    cell.append(ImageSource(files)).append(" STYLE=\"border-width: 0px\"><BR><DIV VALIGN= \"BOTTOM\">");
    AppendText(cell, picture.title);
    return cell.append("</DIV></A></TD>");
}

GalleryWriter::GalleryWriter(const SiteRun& run)
    : m_run(run), m_top(ReadTemplate(run.application.file(QStringLiteral("html/thumbgalltop.html"))),
                        {"$PageOwner", "$PageOfPages", "$ListPage"})
{
}

void GalleryWriter::write(const GalleryOwner& owner, const std::vector<std::string>& cells,
                          std::span<const std::uint32_t> pictures)
{
    const std::size_t pages = (pictures.size() + thumbnailsOnPage - 1) / thumbnailsOnPage;
    for (std::size_t page = 1; page <= pages; ++page) {
        m_file.begin(*m_run.pages, PageName(owner, page));
        m_top.append(m_file.bytes(),
                     {owner.title, "Page " + std::to_string(page) + " of " + std::to_string(pages), owner.listPage});
        const std::size_t first = (page - 1) * thumbnailsOnPage;
        writeThumbnails(cells, pictures.subspan(first, std::min(thumbnailsOnPage, pictures.size() - first)));
        writeNavigation(owner, page, pages);
        m_file.line("</BODY>");
        m_file.line("</HTML>");
        m_file.end();
    }
}

void GalleryWriter::writeThumbnails(const std::vector<std::string>& cells, std::span<const std::uint32_t> pictures)
{
    for (std::size_t place = 0; place < pictures.size(); ++place) {
        if (place % thumbnailsInRow == 0) {
            m_file.line("\t<TR>");
        }
        m_file.line(cells[pictures[place]]);
        if (place % thumbnailsInRow == thumbnailsInRow - 1 || place == pictures.size() - 1) {
            m_file.line("\t</TR>");
        }
    }
    m_file.line("</TABLE>");
}

void GalleryWriter::writeNavigation(const GalleryOwner& owner, std::size_t page, std::size_t pages)
{
    const auto link = [this, &owner](std::size_t target, std::string_view text) {
        m_file.bytes().append("\t<A HREF=\"").append(PageName(owner, target)).append("\">").append(text);
        m_file.line("</A> ");
    };
    m_file.line("<P ALIGN=\"CENTER\">");
    if (page == 1) {
        m_file.line("\tPrevious ");
    } else {
        link(page - 1, "Previous");
    }
    for (std::size_t each = 1; each <= pages; ++each) {
        const std::string number = std::to_string(each);
        link(each, each == page ? "<B>" + number + "</B>" : number);
    }
    if (page == pages) {
        m_file.line("\tNext");
    } else {
        link(page + 1, "Next");
    }
    m_file.line("</P>");
}

} // namespace stemwright
