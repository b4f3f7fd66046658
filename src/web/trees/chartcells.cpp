// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/chartcells.h"

#include "web/html/textextent.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"
#include "web/trees/entrytexts.h"

namespace stemwright
{

namespace
{

// As common.css sets the boxes, in pixels.
constexpr int fontSize = 13;
constexpr int lineHeight = 18;
/// Border and padding of one side.
constexpr int insetAcross = 8;
constexpr int insetDown = 5;

/// Lets lines end behind the commas of "Osborne House,Isle of Wight,England", as many programs write places.
void AllowBreaksAfterCommas(std::string& html, std::size_t from)
{
    bool inTag = false;
    for (std::size_t position = from; position + 1 < html.size(); ++position) {
        const char character = html[position];
        inTag = character == '<' || (inTag && character != '>');
        if (character == ',' && !inTag && html[position + 1] != ' ' && html[position + 1] != '<') {
            html.insert(position + 1, "<WBR>");
        }
    }
}

} // namespace

ChartCells::ChartCells(const SiteRun& run, const PublishedTree& tree, StepProgress& progress)
    : m_run(run), m_tree(tree), m_progress(progress), m_firstReached(tree.walk.entries().size(), noEntry),
      m_nextReached(tree.walk.entries().size(), noEntry)
{
    for (auto number = static_cast<EntryNumber>(tree.walk.entries().size()); number-- > 1;) {
        EntryNumber& first = m_firstReached[entryAt(number).reachedFrom];
        m_nextReached[number] = first;
        first = number;
    }
}

void ChartCells::compose(EntryNumber owner)
{
    m_boxes.clear();
    m_html.clear();
    m_begin.assign(1, 0);
    m_waiting.assign(1, {owner, noBox});
    while (!m_waiting.empty()) {
        const Waiting next = m_waiting.back();
        m_waiting.pop_back();
        composePerson(next);
    }
}

/// Whether the page of the entry's parent only leads to it: it is on a page of its own, or a duplicate that would be
/// the only one of its generation.
bool ChartCells::isLedTo(EntryNumber number) const
{
    const TreeEntry& entry = entryAt(number);
    const TreeEntry& from = entryAt(entry.reachedFrom);
    const bool endsPage =
        from.generation % m_run.settings.generationsOnPage == 0 && !m_tree.walk.opensPage(entry.reachedFrom);
    return m_tree.walk.opensPage(number) || (entry.isDuplicate && endsPage);
}

/// The person's box and those of the spouses; whoever is beside them has to wait.
void ChartCells::composePerson(const Waiting& waiting)
{
    beginBox(waiting.entry, waiting.joinedTo, BoxPlace::Beside);
    const auto person = static_cast<BoxNumber>(m_boxes.size() - 1);
    const std::size_t alreadyWaiting = m_waiting.size();
    // The spouses of a duplicate stand at the main entry.
    EntryNumber reached = entryAt(waiting.entry).isDuplicate ? noEntry : m_firstReached[waiting.entry];
    for (; reached != noEntry; reached = m_nextReached[reached]) {
        if (entryAt(reached).kind == EntryKind::Spouse) {
            endBox();
            beginBox(reached, person, BoxPlace::Beneath);
        } else if (isLedTo(reached)) {
            appendWayTo(reached);
        } else {
            m_waiting.push_back({reached, static_cast<BoxNumber>(m_boxes.size() - 1)});
        }
    }
    endBox();
    std::reverse(m_waiting.begin() + static_cast<std::ptrdiff_t>(alreadyWaiting), m_waiting.end());
}

void ChartCells::beginBox(EntryNumber number, BoxNumber joinedTo, BoxPlace place)
{
    const TreeEntry& entry = entryAt(number);
    m_progress.report([&] { return EntryName(m_run, entry); });
    m_boxes.push_back({0, joinedTo, place});
    if (place == BoxPlace::Beneath && entry.families > 1) {
        m_html.append(SpouseTitle(m_run, m_tree.walk, entry)).append("<BR>");
    }
    appendPerson(entry);
}

void ChartCells::endBox()
{
    const int width =
        chartBoxWidth - 2 * insetAcross - (m_boxes.back().place == BoxPlace::Beneath ? chartIndentation : 0);
    const std::string_view html = std::string_view(m_html).substr(m_begin.back());
    m_boxes.back().height = LinesOf(html, fontSize, width) * lineHeight + 2 * insetDown;
    m_begin.push_back(m_html.size());
}

void ChartCells::appendPerson(const TreeEntry& entry)
{
    const bool isMain = entry.person != nowhere && !entry.isDuplicate;
    const int id = isMain ? m_run.tree.individualId(entry.person) : 0;
    if (isMain) {
        m_html.append("<A NAME=\"").append(std::to_string(id)).append("\"></A>");
    }
    m_html.append("<B>");
    if (entry.kind != EntryKind::Spouse) {
        m_html.append(std::to_string(entry.generation)).append("&nbsp;");
    }
    if (isMain && m_run.settings.personalPages) {
        m_html.append("<A HREF=\"");
        AppendPersonalPageName(m_html, id);
        m_html.append("\" TITLE=\"This Individual's Personal Page\">");
        AppendEntryName(m_html, m_run, entry);
        m_html.append("</A></B>");
    } else {
        AppendEntryName(m_html, m_run, entry);
        m_html.append("</B>");
    }
    if (isMain) {
        AppendInfoLinks(m_html, m_run, entry.person);
    }
    const std::size_t items = m_html.size();
    AppendEntryItems(m_html, m_run, m_tree.walk, entry, "<BR>");
    AllowBreaksAfterCommas(m_html, items);
    if (entry.isDuplicate) {
        m_html.append("<BR>");
        AppendDuplicateLink(m_html, m_run, m_tree, entry);
    }
}

/// A line that leads to somebody of the next generation who has no box on this page.
void ChartCells::appendWayTo(EntryNumber number)
{
    const TreeEntry& entry = entryAt(number);
    m_html.append("<BR><A HREF=\"");
    if (entry.isDuplicate) {
        AppendMainEntryAddress(m_html, m_run, m_tree, entry.person);
    } else {
        m_html.append(TreePageName(m_tree, m_run.tree.individualId(entry.person)));
    }
    m_html.append("\"><IMG SRC=\"graphics/desc.gif\" ALT=\"This Person's ");
    m_html.append(entry.kind == EntryKind::Ancestor ? "Ancestors" : "Descendants");
    m_html.append("\" ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\">");
    AppendEntryName(m_html, m_run, entry);
    m_html.append("</A>");
}

} // namespace stemwright
