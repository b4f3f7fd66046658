// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/collapsitree.h"

#include "web/html/escape.h"
#include "web/html/pagefile.h"
#include "web/html/templates.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"
#include "web/trees/entrytexts.h"

namespace stemwright
{

namespace
{

/// In "&nbsp;", so that a child's name starts under its parent's.
int Indentation(int generation)
{
    constexpr int perGeneration = 12;
    constexpr int secondGeneration = 7;
    return generation == 1 ? 1 : (std::min(generation, deepestIndentation) - 2) * perGeneration + secondGeneration;
}

class CollapsiTreeWriter
{
public:
    CollapsiTreeWriter(const SiteRun& run, const PublishedTree& tree) : m_run(run), m_tree(tree) {}

    void write(StepProgress& progress)
    {
        m_file.begin(*m_run.pages, FirstPageName(m_tree, m_run.tree));
        writeTop();
        const std::vector<TreeEntry>& entries = m_tree.walk.entries();
        for (EntryNumber number = 0; number < entries.size(); ++number) {
            const TreeEntry& entry = entries[number];
            progress.report([] { return std::string_view(); });
            // A duplicate is one line without a block that could hold its spouses; they stand at the main entry.
            if (entry.kind == EntryKind::Spouse && entryAt(entry.reachedFrom).isDuplicate) {
                continue;
            }
            closeBlocksAbove(entry.reachedFrom);
            if (entry.kind == EntryKind::Individual) {
                writeIndividual(number);
            } else {
                writeSpouse(entry);
            }
            m_file.checkpoint();
        }
        closeBlocksAbove(noEntry);
        for (const std::string_view tag : {"</SPAN>", "</NOBR>", "</BODY>", "</HTML>"}) {
            m_file.line(tag);
        }
        m_file.end();
    }

private:
    const TreeEntry& entryAt(EntryNumber number) const { return m_tree.walk.entries()[number]; }

    std::string id(const TreeEntry& entry) const { return std::to_string(m_run.tree.individualId(entry.person)); }

    std::string& page() { return m_file.bytes(); }

    void writeTop()
    {
        std::string headName;
        AppendScriptText(headName, EntryName(m_run, entryAt(0)), ScriptQuotes::Escaped);
        page().append(FillTemplate(ReadTemplate(m_run.application.file(QStringLiteral("html/ctreetop.html"))),
                                   {{"$TreeHeadName", headName}, {"$TreeIconFile", m_tree.icon}}));
    }

    /// Ends the blocks of individuals whose families are finished, down to the one that the next entry belongs to.
    void closeBlocksAbove(EntryNumber individual)
    {
        while (!m_blocks.empty() && m_blocks.back() != individual) {
            m_file.line("</DIV>");
            m_blocks.pop_back();
        }
    }

    void writeIndividual(EntryNumber number)
    {
        const TreeEntry& entry = entryAt(number);
        const bool hasBlock = entry.families > 0 && !entry.isDuplicate;
        page().append("<BR>");
        AppendRepeated(page(), Indentation(entry.generation), "&nbsp;");
        if (hasBlock) {
            page().append("<IMG ID=\"OUT").append(id(entry));
            page().append("\" SRC=\"graphics/expand.gif\" onclick = \"clickExpander(this)\">&nbsp;&nbsp;");
        } else {
            page().append("&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;");
        }
        page().append("<B>").append(std::to_string(entry.generation)).append("&nbsp;");
        writePerson(entry);
        if (hasBlock) {
            page().append("<DIV ID=\"OUT").append(id(entry));
            m_file.line("D\" STYLE=\"display: none\">");
            m_blocks.push_back(number);
        }
    }

    /// The plus sign stands under the expanders of the children.
    void writeSpouse(const TreeEntry& entry)
    {
        constexpr std::string_view plus = "&nbsp;&nbsp;&nbsp;&nbsp;<B>+ ";
        constexpr int blanksBeforePlus = 4;
        page().append("<BR>");
        AppendRepeated(page(), Indentation(entry.generation + 1) - blanksBeforePlus, "&nbsp;");
        page().append(plus);
        writePerson(entry);
    }

    /// The rest of a line, after "<B>".
    void writePerson(const TreeEntry& entry)
    {
        const bool linked = m_run.settings.personalPages && entry.person != nowhere && !entry.isDuplicate;
        if (linked) {
            page().append("<A HREF = \"");
            AppendPersonalPageName(page(), m_run.tree.individualId(entry.person));
            page().append("\" TITLE=\"This Individual's Personal Page\">");
        }
        AppendEntryName(page(), m_run, entry);
        page().append(linked ? "</A></B> " : "</B> ");
        AppendEntryItems(page(), m_run, m_tree.walk, entry);
        if (entry.isDuplicate) {
            AppendDuplicateLink(page(), m_run, m_tree, entry);
        } else if (entry.person != nowhere) {
            page().append("<A NAME=\"").append(id(entry)).append("\"></A>");
            AppendPictureLink(page(), m_run, entry.person);
        }
        page().append(PageFile::lineBreak);
    }

    const SiteRun& m_run;
    const PublishedTree& m_tree;
    PageFile m_file;
    /// The individuals whose blocks are open.
    std::vector<EntryNumber> m_blocks;
};

} // namespace

void WriteCollapsiTree(const SiteRun& run, const PublishedTree& tree, StepProgress& progress)
{
    CollapsiTreeWriter(run, tree).write(progress);
}

} // namespace stemwright
