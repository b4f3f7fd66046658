// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/chartpages.h"

#include "web/links/treelinks.h"
#include "web/trees/chartcells.h"
#include "web/trees/chartcuts.h"
#include "web/trees/treepages.h"

namespace stemwright
{

namespace
{

/// "#C0C0C0"
std::string ColourText(int colour)
{
    constexpr int wholeColour = 0xFFFFFF;
    constexpr int digits = 6;
    constexpr int hexadecimal = 16;
    return QStringLiteral("#%1").arg(colour & wholeColour, digits, hexadecimal, QChar(u'0')).toUpper().toStdString();
}

/// How a chart comes onto paper of the usual sizes.
struct PaperFit {
    bool landscape;
    /// In percent of its size on the screen.
    int percent;
};

PaperFit FitToPaper(int width)
{
    // The widths of the printable part of A4 and Letter, whichever is smaller.
    constexpr int portraitWidth = 690;
    constexpr int landscapeWidth = 960;
    // Upright as long as the letters do not become too small.
    constexpr int smallestUpright = 70;
    constexpr int hundred = 100;
    const int upright = std::min(hundred, portraitWidth * hundred / width);
    return upright >= smallestUpright
               ? PaperFit{false, upright}
               : PaperFit{true, std::max(1, std::min(hundred, landscapeWidth * hundred / width))};
}

class ChartWriter
{
public:
    ChartWriter(const SiteRun& run, const PublishedTree& tree, StepProgress& progress)
        : m_run(run), m_tree(tree), m_cells(run, tree, progress), m_ink(ColourText(run.setup.cellForeground)),
          m_ground(ColourText(run.setup.cellBackground))
    {
    }

    void writePage(EntryNumber owner)
    {
        m_cells.compose(owner);
        const ChartLayout layout = LayOutChart(m_cells.boxes());
        m_file.begin(*m_run.pages, TreePageName(m_tree, m_run.tree.individualId(m_tree.walk.entries()[owner].person)));
        WriteTreePageHead(m_file, m_run, m_tree, owner);
        writeTop(layout);
        for (const ChartStripe& stripe : CutIntoStripes(layout)) {
            writeStripe(layout, stripe);
            m_file.checkpoint();
        }
        m_file.line("</DIV>");
        EndTreePage(m_file);
    }

private:
    std::string& page() { return m_file.bytes(); }

    void appendNumber(std::string_view before, int number) { page().append(before).append(std::to_string(number)); }

    void writeTop(const ChartLayout& layout)
    {
        const PaperFit fit = FitToPaper(layout.width);
        page().append(fit.landscape ? "<DIV CLASS=\"chart landscape\"" : "<DIV CLASS=\"chart\"");
        appendNumber(" STYLE=\"width:", layout.width);
        page().append("px;--cell-ink:").append(m_ink).append(";--cell:").append(m_ground);
        appendNumber(";--paper:", fit.percent);
        m_file.line("%\">");
    }

    void writeStripe(const ChartLayout& layout, const ChartStripe& stripe)
    {
        appendNumber("<DIV CLASS=\"stripe\" STYLE=\"height:", stripe.bottom - stripe.top);
        m_file.line("px\">");
        if (!stripe.lines.empty()) {
            writeLines(layout, stripe);
        }
        for (const BoxNumber box : stripe.boxes) {
            const PlacedBox& place = layout.boxes[box];
            appendNumber("<DIV CLASS=\"cell\" STYLE=\"left:", place.left);
            appendNumber("px;top:", place.top - stripe.top);
            appendNumber("px;bottom:", stripe.bottom - place.bottom());
            appendNumber("px;width:", place.width);
            page().append("px\">").append(m_cells.html(box));
            m_file.line("</DIV>");
        }
        m_file.line("</DIV>");
    }

    void writeLines(const ChartLayout& layout, const ChartStripe& stripe)
    {
        appendNumber("<SVG ARIA-HIDDEN=\"true\" WIDTH=\"", layout.width);
        appendNumber("\" HEIGHT=\"", stripe.bottom - stripe.top);
        page().append("\"><PATH D=\"");
        for (const ChartLine& line : stripe.lines) {
            appendNumber("M", line.left);
            appendNumber(" ", line.top - stripe.top);
            if (line.top == line.bottom) {
                appendNumber("H", line.right);
            } else {
                appendNumber("V", line.bottom - stripe.top);
            }
        }
        m_file.line("\"/></SVG>");
    }

    const SiteRun& m_run;
    const PublishedTree& m_tree;
    ChartCells m_cells;
    std::string m_ink;
    std::string m_ground;
    PageFile m_file;
};

} // namespace

void WriteChartPages(const SiteRun& run, const PublishedTree& tree, StepProgress& progress)
{
    ChartWriter writer(run, tree, progress);
    for (EntryNumber number = 0; number < tree.walk.entries().size(); ++number) {
        if (tree.walk.opensPage(number)) {
            writer.writePage(number);
        }
    }
}

} // namespace stemwright
