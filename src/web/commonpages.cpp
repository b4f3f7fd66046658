// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/commonpages.h"

#include "base/files.h"
#include "base/version.h"
#include "web/html/escape.h"
#include "web/html/templates.h"
#include "web/links/treelinks.h"
#include "web/pictures/picturefiles.h"
#include "web/setup/backgroundstyles.h"

namespace stemwright
{

namespace
{

/// Where a site with one tree leads, and where a site with several does.
struct TreesLink {
    std::string phrase;
    std::string title;
};

TreesLink LinkToTrees(const SiteRun& run)
{
    if (run.trees.size() == 1) {
        return {"from the <A HREF=\"" + FirstPageName(run.trees.front(), run.tree) + "\">family tree</A>",
                "Common ancestor's page"};
    }
    return {"at the <A HREF=\"TreeList.html\">list</A> of family trees", "List of family trees"};
}

std::string HomeLink(const Setup& setup)
{
    if (setup.standalone) {
        return {};
    }
    std::string link("<A HREF=\"");
    AppendText(link, setup.homePageName.toStdString());
    return link + "\"><IMG SRC=\"graphics/btn_home.gif\" ALT=\"Home\" BORDER=0 ALIGN=LEFT></A>";
}

std::string ListOfPicturesLink(const SiteRun& run)
{
    return run.pictures.all().empty() ? ""
                                      : "<A HREF=\"ListOfPics.html\"><IMG SRC=\"graphics/btn_pic.gif\" VSPACE=\"0\" "
                                        "BORDER=\"0\" ALT=\"List of Pictures\"></A>";
}

std::string StartYourTour(const SiteRun& run, const TreesLink& trees)
{
    const std::string start = "Start your tour at the <A HREF=\"NameIndex.html\">index</A> of names";
    return run.pictures.all().empty()
               ? start + " or " + trees.phrase + '.'
               : start + ", " + trees.phrase + " or at the <A HREF=\"ListOfPics.html\">list of pictures.</A>";
}

std::string AuthorHtml(const QString& html)
{
    std::string text;
    AppendAuthorHtml(text, html.toStdString());
    return text;
}

/// Writes the setup's emblem into the site and returns its name. A setup without an emblem shows an invisible image.
std::string WriteEmblem(const SiteRun& run, Connection& connection)
{
    const QString type = run.setup.emblemFileType.toLower();
    const bool usable = !type.isEmpty() && std::all_of(type.begin(), type.end(), [](QChar character) {
        return character.unicode() < 0x80 && character.isLetterOrNumber();
    });
    Statement statement = connection.prepare(QStringLiteral("SELECT EmblemPicture FROM WebSiteInfo WHERE rowid = ?1 AND"
                                                            " length(EmblemPicture) > 0"));
    if (!usable || !statement.bind(1, run.setup.row).step()) {
        return "graphics/spacer.gif";
    }
    const std::string name = "emblem." + type.toStdString();
    WriteWholeFile(run.file(name), PublishableBytes(run, statement.rawBytes(0)));
    return name;
}

void Fill(const SiteRun& run, const QString& source, std::string_view target,
          const std::vector<Replacement>& replacements)
{
    const std::string page = FillTemplate(ReadTemplate(source), replacements);
    WriteWholeFile(run.file(target), QByteArray::fromStdString(page));
}

} // namespace

void WriteCommonPages(const SiteRun& run, Connection& connection)
{
    const auto html = [&run](const char* name) {
        return run.application.file(QStringLiteral("html/") + QLatin1StringView(name));
    };
    const QString style = StyleFolder(run.setup.pageStyle, run.application) + u'/';
    WriteWholeFile(run.file("left.html"), ReadWholeFile(style + QStringLiteral("left.html")));
    for (const char* name : {"topleft.html", "picpage.js", "sniffer.js"}) {
        WriteWholeFile(run.file(name), ReadWholeFile(html(name)));
    }
    const TreesLink trees = LinkToTrees(run);
    Fill(run, style + QStringLiteral("bottom.html"), "bottom.html",
         {{"$HomeLink", HomeLink(run.setup)},
          {"$Version", std::to_string(versionMajor) + '.' + std::to_string(versionMinor)},
          {"$Year", std::to_string(run.settings.currentYear)}});
    Fill(run, style + QStringLiteral("topright.html"), "topright.html",
         {{"$CommonAncestor", trees.phrase},
          {"$ListOfPicsLink", ListOfPicturesLink(run)},
          {"$Title4TreesIcon", trees.title}});
    Fill(run, style + QStringLiteral("main.html"), "main.html",
         {{"$TitleStory", AuthorHtml(run.setup.titleStory)},
          {"$SiteTitle", AuthorHtml(run.setup.siteTitle)},
          {"$EmblemFilename", WriteEmblem(run, connection)},
          {"$StartYourTour", StartYourTour(run, trees)}});
    // Last, since a site that has it is taken for a whole one.
    WriteWholeFile(run.file("index.html"), ReadWholeFile(style + QStringLiteral("tree.html")));
}

} // namespace stemwright
