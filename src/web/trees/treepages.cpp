// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/treepages.h"

#include "web/html/escape.h"
#include "web/links/treelinks.h"
#include "web/trees/entrytexts.h"

namespace stemwright
{

namespace
{

/// The path of pages above a page is cut to its end where it is longer than anybody could read, so that the sizes of
/// pages do not grow with the square of a very long line of descent.
constexpr std::size_t longestPath = 1000;

/// The owners of the pages above the one of `owner`, from the head's page down.
std::vector<EntryNumber> OwnersAbove(const TreeWalk& walk, EntryNumber owner)
{
    const std::vector<TreeEntry>& entries = walk.entries();
    std::vector<EntryNumber> owners;
    while (owners.size() < longestPath && entries[owner].reachedFrom != noEntry) {
        owner = entries[entries[owner].reachedFrom].page;
        owners.push_back(owner);
    }
    std::reverse(owners.begin(), owners.end());
    return owners;
}

void AppendRoots(std::string& page, const SiteRun& run, const PublishedTree& tree, EntryNumber owner)
{
    for (const EntryNumber above : OwnersAbove(tree.walk, owner)) {
        const TreeEntry& entry = tree.walk.entries()[above];
        page.append("<A HREF='").append(TreePageName(tree, run.tree.individualId(entry.person))).append("'>");
        AppendScriptText(page, EntryName(run, entry), ScriptQuotes::Concatenated);
        page.append("</A>->");
    }
}

} // namespace

void WriteTreePageHead(PageFile& file, const SiteRun& run, const PublishedTree& tree, EntryNumber owner)
{
    std::string& bytes = file.bytes();
    const std::string name = EntryName(run, tree.walk.entries()[owner]);
    const std::string_view whose = tree.display == TreeDisplay::AncestorTree ? "Ancestors of " : "Descendants of ";
    file.line("<HTML>");
    file.line("<HEAD>");
    bytes.append("<TITLE>").append(whose);
    AppendText(bytes, name);
    file.line("</TITLE>");
    file.line("<META HTTP_EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=iso-8859-1\">");
    file.line("<SCRIPT LANGUAGE=\"JavaScript\" SRC=\"sniffer.js\"></SCRIPT>");
    file.line("<SCRIPT LANGUAGE=\"JavaScript\">");
    file.line("<!-- ;");
    file.line("\tfunction init()");
    file.line("\t{");
    file.line("\t\tif (is_ie5up || is_gecko)");
    file.line("\t\t{");
    bytes.append("\t\t\tparent.frames[\"frmTopLeft\"].document.getElementById(\"DocRoots\").innerHTML = \"");
    AppendRoots(bytes, run, tree, owner);
    file.line("\";");
    bytes.append("\t\t\tparent.frames[\"frmTopLeft\"].document.getElementById(\"DocOwner\").innerHTML = \"");
    bytes.append(whose);
    AppendScriptText(bytes, name, ScriptQuotes::Concatenated);
    file.line("\";");
    bytes.append("\t\t\tparent.frames[\"frmTopLeft\"].document.getElementById(\"Icon\").innerHTML = \"<IMG SRC='");
    bytes.append(tree.icon);
    file.line("'>\";");
    file.line("\t\t}");
    file.line("\t}");
    file.line("// end hide -->");
    file.line("</SCRIPT>");
    file.line("</HEAD>");
    file.line("<BODY BGCOLOR=\"#FFFFFF\" onLoad=\"init()\" BACKGROUND=\"graphics/center.gif\">");
    file.line("<BASEFONT FACE=\"Times New Roman\">");
}

void EndTreePage(PageFile& file)
{
    file.line("</FONT>");
    file.line("</BODY>");
    file.bytes().append("</HTML>");
    file.end();
}

} // namespace stemwright
