// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pictures/picturelistpage.h"

#include "web/html/escape.h"
#include "web/html/templates.h"
#include "web/links/picturelinks.h"

namespace stemwright
{

namespace
{

constexpr PictureRowTags rowTags = {"<TD WIDTH=8%>", "<TD WIDTH=20%>", "<TD WIDTH=23%>", "<TD WIDTH=42%>",
                                    "<TD WIDTH=5%>"};

} // namespace

void WritePictureRow(PageFile& file, const PublishedPicture& picture, const PictureRowTags& tags)
{
    std::string& page = file.bytes();
    page.append("<TR>\r\n\t").append(tags[0]).append(std::to_string(picture.id));
    file.line("</TD>");
    std::size_t tag = 1;
    for (const std::string* text : {&picture.date, &picture.place, &picture.title}) {
        page.append("\t").append(tags[tag++]);
        AppendText(page, *text);
        page.append(text->empty() ? "&nbsp;" : "");
        file.line("</TD>");
    }
    page.append("\t").append(tags[tag]).append("<A HREF=\"").append(PicturePageName(picture.id));
    file.line("\">View</A></TD>");
    file.line("</TR>");
}

PictureListPage::PictureListPage(const SiteRun& run)
{
    m_file.begin(*run.pages, "ListOfPics.html");
    m_file.bytes().append(FillTemplate(ReadTemplate(run.application.file(QStringLiteral("html/piclisttop.html"))), {}));
}

void PictureListPage::add(const PublishedPicture& picture)
{
    WritePictureRow(m_file, picture, rowTags);
    m_file.checkpoint();
}

void PictureListPage::finish()
{
    for (const std::string_view tag : {"</TABLE>", "</FONT>", "</BODY>", "</HTML>"}) {
        m_file.line(tag);
    }
    m_file.end();
}

} // namespace stemwright
