// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/people/personpart.h"

#include "web/html/celltexts.h"
#include "web/html/escape.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"

namespace stemwright
{

void PersonPart::beginTable(std::string_view first, std::string_view second, std::string_view third)
{
    line("<TABLE WIDTH=\"100%\" BORDER=\"1\" CELLPADDING = \"2\"  CELLSPACING=\"0\">");
    line("<TR>");
    line(first);
    line(second);
    line(third);
    line("</TR>");
}

void PersonPart::writeRow(const PublishedItem& item, std::string_view date, std::string_view text)
{
    line("<TR>");
    cell(TextCell(item.name));
    cell(date);
    cell(text);
    line("</TR>");
}

void PersonPart::writeEvent(const PublishedItem& item, std::string_view date, std::string_view place)
{
    writeRow(item, date.empty() ? std::string(nothing) : DateCell(date),
             place.empty() ? std::string(nothing) : TextCell(place));
}

void PersonPart::appendPersonLink(TreePosition person)
{
    page().push_back(' ');
    if (!m_run.mayBeNamed(person)) {
        AppendText(page(), privatePerson);
        return;
    }
    if (!m_run.isOnSite(person)) {
        page().append(m_run.names.displayHtml(person));
        return;
    }
    page().append("<A HREF=\"");
    AppendPersonalPageName(page(), m_run.tree.individualId(person));
    page().append("\">").append(m_run.names.displayHtml(person));
    page().append("</A>&nbsp;");
    AppendTreeLinks(page(), m_run, person);
    AppendInfoLinks(page(), m_run, person);
}

} // namespace stemwright
