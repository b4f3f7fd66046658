// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/chartlayout.h"

#include "web/trees/chartcuts.h"
#include "web/trees/chartpacking.h"

#include <algorithm>

namespace stemwright
{

namespace
{

/// Between columns the lines run: so far from both sides, and from each other.
constexpr int gapBesideLines = 13;
constexpr int gapOfLines = 5;

/// The line that ties the spouses to the person runs under the rectangle of the person, so far inside.
constexpr int tieInset = 7;

/// The lines from one box to those beside it: from its middle to the right, up and down in a lane of the gap between
/// the columns, and on to each of them.
struct Branching {
    BoxNumber box = noBox;
    /// The heights of its own middle, of the first and of the last box to be reached.
    int from = 0;
    int first = 0;
    int last = 0;
    int lane = 0;
};

/// Gives the branchings of a column, from top to bottom, their lanes, and returns how many lanes there are. Whose line
/// goes down past where the next one begins runs further right than that one, whose line goes up past the one before
/// likewise; so no lines of different parents meet or cross.
int AssignLanes(std::vector<Branching>& branchings)
{
    int lanes = 1;
    const auto assign = [&lanes](Branching& branching, const Branching& neighbour, bool passes) {
        branching.lane = std::max(branching.lane, passes ? neighbour.lane + 1 : 0);
        lanes = std::max(lanes, branching.lane + 1);
    };
    for (std::size_t number = branchings.size(); number-- > 1;) {
        Branching& upper = branchings[number - 1];
        assign(upper, branchings[number], std::max(upper.from, upper.last) + gapOfLines > branchings[number].from);
    }
    for (std::size_t number = 1; number < branchings.size(); ++number) {
        Branching& lower = branchings[number];
        assign(lower, branchings[number - 1],
               std::min(lower.from, lower.first) - gapOfLines < branchings[number - 1].from);
    }
    return lanes;
}

class Drawing
{
public:
    Drawing(std::span<const ChartBox> boxes, std::vector<ChartStack> stacks)
        : m_boxes(boxes), m_stacks(std::move(stacks))
    {
        m_layout.boxes.resize(boxes.size());
    }

    ChartLayout run()
    {
        placeAcross();
        m_layout.cuts = MakeCuts(m_layout.boxes);
        collectBranchings();
        placeAlong();
        drawTies();
        drawBranchings();
        return std::move(m_layout);
    }

private:
    /// Everything that does not depend on the widths of the gaps between columns.
    void placeAcross()
    {
        for (const ChartStack& stack : m_stacks) {
            int top = stack.top;
            for (BoxNumber box = stack.firstBox; box < stack.end; ++box) {
                const int indentation = box == stack.firstBox ? 0 : chartIndentation;
                m_layout.boxes[box] = {indentation, top, chartBoxWidth - indentation, m_boxes[box].height};
                top += m_boxes[box].height + gapInChartStack;
            }
            m_columns.resize(std::max<std::size_t>(m_columns.size(), stack.column + 1));
        }
    }

    /// Only the first stack is reached from none.
    void collectBranchings()
    {
        m_branchingOfStack.resize(m_stacks.size());
        for (std::size_t number = 1; number < m_stacks.size(); ++number) {
            const ChartStack& stack = m_stacks[number];
            std::vector<Branching>& branchings = m_columns[stack.column - 1].branchings;
            const BoxNumber from = m_boxes[stack.firstBox].joinedTo;
            const int middle = m_layout.boxes[stack.firstBox].middle();
            if (branchings.empty() || branchings.back().box != from) {
                branchings.push_back({from, m_layout.boxes[from].middle(), middle, middle});
            }
            branchings.back().last = middle;
            m_branchingOfStack[number] = branchings.size() - 1;
        }
    }

    void placeAlong()
    {
        int left = 0;
        for (Column& column : m_columns) {
            column.left = left;
            m_layout.width = left + chartBoxWidth;
            left = m_layout.width + 2 * gapBesideLines + (AssignLanes(column.branchings) - 1) * gapOfLines;
        }
        for (const ChartStack& stack : m_stacks) {
            for (BoxNumber box = stack.firstBox; box < stack.end; ++box) {
                m_layout.boxes[box].left += m_columns[stack.column].left;
                m_layout.height = std::max(m_layout.height, m_layout.boxes[box].bottom());
            }
        }
    }

    void drawTies()
    {
        for (const ChartStack& stack : m_stacks) {
            const PlacedBox& person = m_layout.boxes[stack.firstBox];
            const int tie = person.left + tieInset;
            for (BoxNumber box = stack.firstBox + 1; box < stack.end; ++box) {
                drawAcross(tie, m_layout.boxes[box].middle(), m_layout.boxes[box].left);
            }
            if (stack.end > stack.firstBox + 1) {
                drawDown(tie, person.middle(), m_layout.boxes[stack.end - 1].middle());
            }
        }
    }

    void drawBranchings()
    {
        for (const Column& column : m_columns) {
            for (const Branching& branching : column.branchings) {
                const int lane = laneOf(column, branching);
                drawAcross(m_layout.boxes[branching.box].right(), branching.from, lane);
                drawDown(lane, std::min(branching.from, branching.first), std::max(branching.from, branching.last));
            }
        }
        for (std::size_t number = 1; number < m_stacks.size(); ++number) {
            const ChartStack& stack = m_stacks[number];
            const Column& column = m_columns[stack.column - 1];
            const PlacedBox& box = m_layout.boxes[stack.firstBox];
            drawAcross(laneOf(column, column.branchings[m_branchingOfStack[number]]), box.middle(), box.left);
        }
    }

    struct Column {
        int left = 0;
        std::vector<Branching> branchings;
    };

    static int laneOf(const Column& column, const Branching& branching)
    {
        return column.left + chartBoxWidth + gapBesideLines + branching.lane * gapOfLines;
    }

    void drawAcross(int left, int height, int right) { m_layout.lines.push_back({left, height, right, height}); }

    void drawDown(int left, int top, int bottom)
    {
        if (top < bottom) {
            m_layout.lines.push_back({left, top, left, bottom});
        }
    }

    std::span<const ChartBox> m_boxes;
    std::vector<ChartStack> m_stacks;
    std::vector<Column> m_columns;
    /// Where the branching that reaches a stack stands in the column on the left of it.
    std::vector<std::size_t> m_branchingOfStack;
    ChartLayout m_layout;
};

} // namespace

ChartLayout LayOutChart(std::span<const ChartBox> boxes)
{
    if (boxes.empty()) {
        return {};
    }
    return Drawing(boxes, PackStacks(boxes)).run();
}

} // namespace stemwright
