// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/outlinepages.h"

#include "web/html/escape.h"
#include "web/html/pagefile.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"
#include "web/trees/entrytexts.h"
#include "web/trees/treepages.h"

#include <deque>

namespace stemwright
{

namespace
{

constexpr int dotsPerLevel = 4;

class OutlineWriter
{
public:
    OutlineWriter(const SiteRun& run, const PublishedTree& tree) : m_run(run), m_tree(tree) {}

    void write(StepProgress& progress)
    {
        const std::vector<TreeEntry>& entries = m_tree.walk.entries();
        for (EntryNumber number = 0; number < entries.size(); ++number) {
            const TreeEntry& entry = entries[number];
            progress.report([&] { return EntryName(m_run, entry); });
            turnTo(number);
            if (entry.kind == EntryKind::Spouse) {
                writeSpouse(entry);
            } else {
                writeIndividual(number);
            }
            m_pages[m_open - 1].file.checkpoint();
        }
        closeDownTo(0);
    }

private:
    struct Page {
        EntryNumber owner;
        PageFile file;
    };

    const TreeEntry& entryAt(EntryNumber number) const { return m_tree.walk.entries()[number]; }

    int idOf(const TreeEntry& entry) const { return m_run.tree.individualId(entry.person); }

    std::string& page() { return m_pages[m_open - 1].file.bytes(); }

    /// Makes the page of the entry the current one: pages whose part of the tree is finished are closed, and the
    /// entry's own page is opened when it has one.
    void turnTo(EntryNumber number)
    {
        const TreeEntry& entry = entryAt(number);
        const bool opens = m_tree.walk.opensPage(number);
        const EntryNumber above = !opens                         ? entry.page
                                  : entry.reachedFrom == noEntry ? noEntry
                                                                 : entryAt(entry.reachedFrom).page;
        std::size_t keep = m_open;
        while (keep > 0 && m_pages[keep - 1].owner != above) {
            --keep;
        }
        closeDownTo(keep);
        if (opens) {
            openPage(number);
        }
    }

    void openPage(EntryNumber owner)
    {
        if (m_open == m_pages.size()) {
            m_pages.emplace_back();
        }
        Page& opened = m_pages[m_open++];
        opened.owner = owner;
        opened.file.begin(*m_run.pages, TreePageName(m_tree, idOf(entryAt(owner))));
        WriteTreePageHead(opened.file, m_run, m_tree, owner);
    }

    void closeDownTo(std::size_t keep)
    {
        for (; m_open > keep; --m_open) {
            EndTreePage(m_pages[m_open - 1].file);
        }
    }

    void appendDots(const TreeEntry& entry)
    {
        const int level = entry.generation - entryAt(m_pages[m_open - 1].owner).generation;
        AppendRepeated(page(), std::min(level, deepestIndentation) * dotsPerLevel, ".");
    }

    void writeIndividual(EntryNumber number)
    {
        const TreeEntry& entry = entryAt(number);
        page().append("<BR><NOBR><FONT SIZE=\"-1\">");
        appendDots(entry);
        page().append("<B>").append(std::to_string(entry.generation)).append("</B>&nbsp;&nbsp;");
        if (entry.isDuplicate) {
            writeDuplicate(entry);
            return;
        }
        writePerson(entry);
        appendContinuationLinks(number);
        endLine();
    }

    void writeSpouse(const TreeEntry& entry)
    {
        if (entry.families > 1) {
            writeSpouseHeading(entry);
        }
        page().append("<BR><FONT SIZE=\"-1\">");
        appendDots(entry);
        page().append("&nbsp;&nbsp;&nbsp;&nbsp;<B>+ </B>");
        if (entry.isDuplicate) {
            writeDuplicate(entry);
            return;
        }
        writePerson(entry);
        endLine();
    }

    /// "2nd Wife of ..." before the second and later spouses.
    void writeSpouseHeading(const TreeEntry& entry)
    {
        const TreeEntry& individual = entryAt(entry.reachedFrom);
        page().append("<BR><NOBR><FONT SIZE=\"-1\">");
        appendDots(entry);
        page().append("<B>").append(SpouseTitle(m_run, m_tree.walk, entry)).append(" of ");
        AppendEntryName(page(), m_run, individual);
        page().append("</B>");
        endLine();
    }

    void writeDuplicate(const TreeEntry& entry)
    {
        page().append("<B>");
        AppendEntryName(page(), m_run, entry);
        page().append("</B>");
        AppendEntryItems(page(), m_run, m_tree.walk, entry);
        AppendDuplicateLink(page(), m_run, m_tree, entry);
        endLine();
    }

    /// Name, items, anchor and icon links of a main entry.
    void writePerson(const TreeEntry& entry)
    {
        const bool linked = m_run.settings.personalPages && entry.person != nowhere;
        if (linked) {
            page().append("<A HREF = \"");
            AppendPersonalPageName(page(), idOf(entry));
            page().append("\" TITLE=\"This Individual's Personal Page\"><B>");
        } else {
            page().append(" <B>");
        }
        AppendEntryName(page(), m_run, entry);
        page().append(linked ? "</B></A>" : "</B> ");
        AppendEntryItems(page(), m_run, m_tree.walk, entry);
        if (entry.person != nowhere) {
            page().append("<A NAME=\"").append(std::to_string(idOf(entry))).append("\"></A>");
            AppendInfoLinks(page(), m_run, entry.person);
        }
    }

    /// A link for each child that opens a page of its own.
    void appendContinuationLinks(EntryNumber number)
    {
        const TreeEntry& entry = entryAt(number);
        if (entry.generation % m_run.settings.generationsOnPage != 0) {
            return;
        }
        for (const TreePosition family : m_run.tree.spouseFamilies(entry.person)) {
            for (const TreePosition child : m_run.tree.children(family)) {
                const EntryNumber main = m_tree.walk.mainEntry(child);
                if (main != noEntry && m_tree.walk.opensPage(main) && entryAt(main).reachedFrom == number) {
                    page().append("<A HREF=\"").append(TreePageName(m_tree, m_run.tree.individualId(child)));
                    page().append("\"><IMG SRC=\"graphics/desc.gif\" ALT=\"This Person's Descendants\" "
                                  "ALIGN=\"Absmiddle\" VSPACE=\"0\" BORDER=\"0\"></A>");
                }
            }
        }
    }

    void endLine() { m_pages[m_open - 1].file.line("</FONT>"); }

    const SiteRun& m_run;
    const PublishedTree& m_tree;
    /// The first m_open pages are being written, from the head's down to the current one; the others wait for reuse.
    std::deque<Page> m_pages;
    std::size_t m_open = 0;
};

} // namespace

void WriteOutlinePages(const SiteRun& run, const PublishedTree& tree, StepProgress& progress)
{
    OutlineWriter(run, tree).write(progress);
}

} // namespace stemwright
