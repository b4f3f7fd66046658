// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/treelist.h"

#include "web/html/escape.h"
#include "web/html/pagefile.h"
#include "web/html/templates.h"
#include "web/links/treelinks.h"

namespace stemwright
{

namespace
{

void AppendCell(PageFile& file, std::string_view tag, std::string_view content)
{
    file.bytes().append("\t");
    file.line(tag);
    file.bytes().append("\t\t");
    file.line(content);
    file.line("\t</TD>");
}

void AppendRow(PageFile& file, const SiteRun& run, const PublishedTree& tree)
{
    std::string name;
    AppendText(name, tree.headName);
    std::string display;
    AppendText(display, DisplayName(tree.display).toStdString());
    file.line("<TR>");
    AppendCell(file, "<TD>", std::to_string(run.tree.individualId(tree.walk.entries().front().person)));
    AppendCell(file, "<TD>", name);
    AppendCell(file, "<TD>", display);
    AppendCell(file, "<TD WIDTH=5%>",
               "<A HREF=\"" + FirstPageName(tree, run.tree) + "\"><IMG SRC=\"" + tree.icon +
                   "\" ALIGN=\"ABSMIDDLE\" VSPACE=\"0\" BORDER=\"0\"></A>");
    file.line("</TR>");
}

} // namespace

void WriteTreeList(const SiteRun& run)
{
    PageFile file;
    file.begin(*run.pages, "TreeList.html");
    file.bytes().append(FillTemplate(ReadTemplate(run.application.file(QStringLiteral("html/treelisttop.html"))), {}));
    for (const PublishedTree& tree : run.trees) {
        AppendRow(file, run, tree);
    }
    file.line("</TABLE>");
    file.line("</FONT>");
    file.line("</BODY>");
    file.bytes().append("</HTML>");
    file.end();
}

} // namespace stemwright
