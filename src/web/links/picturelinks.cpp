// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/links/picturelinks.h"

#include "web/links/contactlinks.h"

namespace stemwright
{

std::string PicturePageName(int pictureId)
{
    return "PicPage" + std::to_string(pictureId) + ".html";
}

std::string PictureListName(int individualId)
{
    return "PicList" + std::to_string(individualId) + ".html";
}

void AppendPictureLink(std::string& page, const SiteRun& run, TreePosition person)
{
    const std::span<const std::uint32_t> pictures = run.pictures.of(person);
    if (pictures.empty()) {
        return;
    }
    const bool isOne = pictures.size() == 1;
    page.append("<A HREF=\"");
    page.append(isOne ? PicturePageName(run.pictures.all()[pictures.front()].id)
                      : PictureListName(run.tree.individualId(person)));
    page.append("\"><IMG SRC=\"graphics/photo.gif\" ALT=\"");
    page.append(isOne ? "Picture with This Person" : "List of Pictures with This Person");
    page.append("\" ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\"></A>");
}

void AppendInfoLinks(std::string& page, const SiteRun& run, TreePosition person)
{
    AppendPictureLink(page, run, person);
    AppendContactLinks(page, run, person);
}

} // namespace stemwright
