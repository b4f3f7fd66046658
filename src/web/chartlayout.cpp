// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/chartlayout.h"

#include "web/chartcuts.h"

#include <algorithm>

namespace stemwright
{

namespace
{

/// Between a person's rectangle and those of the spouses, between brothers and sisters, between cousins.
constexpr int gapInStack = 6;
constexpr int gapOfSiblings = 12;
constexpr int gapOfCousins = 20;

/// A stack is beside the middle of the next generation unless that is so far below the first one of it, about half a
/// screen; then it keeps this distance, so that whoever looks at a tall chart sees both at once.
constexpr int longestLead = 300;

/// Between columns the lines run: so far from both sides, and from each other.
constexpr int gapBesideLines = 13;
constexpr int gapOfLines = 5;

/// The line that ties the spouses to the person runs under the rectangle of the person, so far inside.
constexpr int tieInset = 7;

using StackNumber = std::uint32_t;

constexpr StackNumber noStack = std::numeric_limits<StackNumber>::max();

/// A person and the spouses beneath, who are placed together.
struct Stack {
    BoxNumber firstBox = 0;
    /// Of the first box that does not belong to it.
    BoxNumber end = 0;
    std::uint32_t column = 0;
    int height = 0;
    StackNumber parent = noStack;
    StackNumber firstChild = noStack;
    StackNumber nextSibling = noStack;
    /// First from the parent's top, then from the chart's.
    int top = 0;
};

/// The upper and the lower outline of a stack with all its descendants, column by column.
struct Outline {
    struct Level {
        int top;
        int bottom;
    };

    /// The last level is the first column, so that the next one to the left is appended.
    std::vector<Level> levels;
    /// To be added to all levels.
    int shift = 0;

    Level& level(std::size_t column) { return levels[levels.size() - 1 - column]; }
};

std::vector<Stack> StacksOf(std::span<const ChartBox> boxes)
{
    std::vector<Stack> stacks;
    std::vector<StackNumber> stackOfBox(boxes.size());
    for (BoxNumber box = 0; box < boxes.size(); ++box) {
        if (boxes[box].place == BoxPlace::Beneath && !stacks.empty()) {
            stacks.back().height += gapInStack + boxes[box].height;
        } else {
            Stack& stack = stacks.emplace_back();
            stack.firstBox = box;
            stack.height = boxes[box].height;
            if (boxes[box].joinedTo != noBox) {
                stack.parent = stackOfBox[boxes[box].joinedTo];
                stack.column = stacks[stack.parent].column + 1;
            }
        }
        stacks.back().end = box + 1;
        stackOfBox[box] = static_cast<StackNumber>(stacks.size() - 1);
    }
    for (auto number = static_cast<StackNumber>(stacks.size()); number-- > 1;) {
        Stack& parent = stacks[stacks[number].parent];
        stacks[number].nextSibling = parent.firstChild;
        parent.firstChild = number;
    }
    return stacks;
}

/// How far below its own origin the lower of two parts must go to clear the upper one in every column.
int Clearance(Outline& upper, Outline& lower)
{
    int clearance = std::numeric_limits<int>::min();
    for (std::size_t column = 0; column < std::min(upper.levels.size(), lower.levels.size()); ++column) {
        const int gap = column == 0 ? gapOfSiblings : gapOfCousins;
        const int bottom = upper.level(column).bottom + upper.shift;
        clearance = std::max(clearance, bottom + gap - lower.level(column).top - lower.shift);
    }
    return clearance;
}

/// Joins the lower outline to the upper one. Only the columns that both have are gone through: each such step makes one
/// of two levels disappear for good, which is why the time is in proportion to the number of stacks.
void Join(Outline& upper, Outline&& lower)
{
    const std::size_t common = std::min(upper.levels.size(), lower.levels.size());
    if (upper.levels.size() >= lower.levels.size()) {
        for (std::size_t column = 0; column < common; ++column) {
            upper.level(column).bottom = lower.level(column).bottom + lower.shift - upper.shift;
        }
    } else {
        for (std::size_t column = 0; column < common; ++column) {
            lower.level(column).top = upper.level(column).top + upper.shift - lower.shift;
        }
        upper = std::move(lower);
    }
}

/// Packs the descendants of every stack as tightly as their outlines allow, and sets the stack beside their middle.
class Packing
{
public:
    explicit Packing(std::vector<Stack>& stacks) : m_stacks(stacks), m_outlines(stacks.size()) {}

    /// Gives every stack its place.
    void run()
    {
        for (auto number = static_cast<StackNumber>(m_stacks.size()); number-- > 0;) {
            pack(number);
        }
        int top = 0;
        for (const Outline::Level& level : m_outlines.front().levels) {
            top = std::min(top, level.top + m_outlines.front().shift);
        }
        m_stacks.front().top = -top;
        for (std::size_t number = 1; number < m_stacks.size(); ++number) {
            m_stacks[number].top += m_stacks[m_stacks[number].parent].top;
        }
    }

private:
    /// All descendants of the stack are packed already.
    void pack(StackNumber number)
    {
        const Stack& stack = m_stacks[number];
        Outline outline;
        StackNumber last = noStack;
        for (StackNumber child = stack.firstChild; child != noStack; child = m_stacks[child].nextSibling) {
            Outline& below = m_outlines[child];
            if (last == noStack) {
                outline = std::move(below);
                m_stacks[child].top = 0;
            } else {
                m_stacks[child].top = Clearance(outline, below);
                below.shift += m_stacks[child].top;
                Join(outline, std::move(below));
            }
            below = Outline();
            last = child;
        }
        if (last != noStack) {
            const int middle = std::min((m_stacks[last].top + m_stacks[last].height) / 2, longestLead);
            const int shift = stack.height / 2 - middle;
            for (StackNumber child = stack.firstChild; child != noStack; child = m_stacks[child].nextSibling) {
                m_stacks[child].top += shift;
            }
            outline.shift += shift;
        }
        outline.levels.push_back({-outline.shift, stack.height - outline.shift});
        m_outlines[number] = std::move(outline);
    }

    std::vector<Stack>& m_stacks;
    std::vector<Outline> m_outlines;
};

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
    Drawing(std::span<const ChartBox> boxes, const std::vector<Stack>& stacks) : m_boxes(boxes), m_stacks(stacks)
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
        for (const Stack& stack : m_stacks) {
            int top = stack.top;
            for (BoxNumber box = stack.firstBox; box < stack.end; ++box) {
                const int indentation = box == stack.firstBox ? 0 : chartIndentation;
                m_layout.boxes[box] = {indentation, top, chartBoxWidth - indentation, m_boxes[box].height};
                top += m_boxes[box].height + gapInStack;
            }
            m_columns.resize(std::max<std::size_t>(m_columns.size(), stack.column + 1));
        }
    }

    /// Only the first stack is reached from none.
    void collectBranchings()
    {
        m_branchingOfStack.resize(m_stacks.size());
        for (std::size_t number = 1; number < m_stacks.size(); ++number) {
            const Stack& stack = m_stacks[number];
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
        for (const Stack& stack : m_stacks) {
            for (BoxNumber box = stack.firstBox; box < stack.end; ++box) {
                m_layout.boxes[box].left += m_columns[stack.column].left;
                m_layout.height = std::max(m_layout.height, m_layout.boxes[box].bottom());
            }
        }
    }

    void drawTies()
    {
        for (const Stack& stack : m_stacks) {
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
            const Stack& stack = m_stacks[number];
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
    const std::vector<Stack>& m_stacks;
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
    std::vector<Stack> stacks = StacksOf(boxes);
    Packing(stacks).run();
    return Drawing(boxes, stacks).run();
}

} // namespace stemwright
