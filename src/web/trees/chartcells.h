// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"
#include "web/run/stepprogress.h"
#include "web/trees/chartlayout.h"

#include <string>

/// What the rectangles of a tree of rectangles hold, page by page, and how much room each of them needs: all that the
/// layout of a page has to know of its texts. Nothing here fails. Stands on the walk and on text extents.
namespace stemwright
{

class ChartCells
{
public:
    ChartCells(const SiteRun& run, const PublishedTree& tree, StepProgress& progress);

    /// Composes the page that this entry opens, in place of the one before: the boxes of all its entries but for those
    /// that are only led to, which are lines in the boxes that lead there.
    void compose(EntryNumber owner);

    std::span<const ChartBox> boxes() const { return m_boxes; }

    /// What a box holds.
    std::string_view html(BoxNumber box) const
    {
        return std::string_view(m_html).substr(m_begin[box], m_begin[box + 1] - m_begin[box]);
    }

private:
    struct Waiting {
        EntryNumber entry;
        BoxNumber joinedTo;
    };

    const TreeEntry& entryAt(EntryNumber number) const { return m_tree.walk.entries()[number]; }

    bool isLedTo(EntryNumber number) const;
    void composePerson(const Waiting& waiting);
    void beginBox(EntryNumber number, BoxNumber joinedTo, BoxPlace place);
    void endBox();
    void appendPerson(const TreeEntry& entry);
    void appendWayTo(EntryNumber number);

    const SiteRun& m_run;
    const PublishedTree& m_tree;
    StepProgress& m_progress;
    /// By entry, those reached from it: the first one, and then each one's next.
    std::vector<EntryNumber> m_firstReached;
    std::vector<EntryNumber> m_nextReached;
    std::vector<ChartBox> m_boxes;
    std::vector<Waiting> m_waiting;
    std::string m_html;
    /// Where the HTML of each box begins; behind the last one, where it ends.
    std::vector<std::size_t> m_begin;
};

} // namespace stemwright
