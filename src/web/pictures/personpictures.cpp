// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pictures/personpictures.h"

#include "web/html/escape.h"
#include "web/links/picturelinks.h"
#include "web/pictures/picturelistpage.h"

namespace stemwright
{

namespace
{

constexpr PictureRowTags rowTags = {"<TD WIDTH=\"10%\">", "<TD WIDTH=\"20%\">", "<TD WIDTH=\"23%\">",
                                    "<TD WIDTH=\"42%\">", "<TD WIDTH=\"5%\">"};

} // namespace

void WritePersonPictures(const SiteRun& run, GalleryWriter& galleries, const std::vector<std::string>& cells)
{
    const PreparedTemplate top(ReadTemplate(run.application.file(QStringLiteral("html/piclist.html"))),
                               {"$Name", "$IndiId"});
    PageFile file;
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        const std::span<const std::uint32_t> pictures = run.pictures.of(person);
        if (pictures.size() < 2) {
            continue;
        }
        const int id = run.tree.individualId(person);
        std::string name;
        AppendScriptText(name, run.names.displayName(person), ScriptQuotes::Concatenated);
        file.begin(*run.pages, PictureListName(id));
        top.append(file.bytes(), {name, std::to_string(id)});
        for (const std::uint32_t picture : pictures) {
            WritePictureRow(file, run.pictures.all()[picture], rowTags);
        }
        for (const std::string_view tag : {"</TABLE>", "</FONT>", "</BODY>", "</HTML>"}) {
            file.line(tag);
        }
        file.end();
        galleries.write(PicturesOf(run, person), cells, pictures);
    }
}

} // namespace stemwright
