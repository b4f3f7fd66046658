// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/chartpacking.h"

#include <algorithm>

namespace stemwright
{

namespace
{

/// Between brothers and sisters, and between cousins.
constexpr int gapOfSiblings = 12;
constexpr int gapOfCousins = 20;

/// A stack is beside the middle of the next generation unless that is so far below the first one of it, about half a
/// screen; then it keeps this distance, so that whoever looks at a tall chart sees both at once.
constexpr int longestLead = 300;

/// The upper and the lower contour of a stack with all its descendants, column by column.
struct Contour {
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

std::vector<ChartStack> StacksOf(std::span<const ChartBox> boxes)
{
    std::vector<ChartStack> stacks;
    std::vector<StackNumber> stackOfBox(boxes.size());
    for (BoxNumber box = 0; box < boxes.size(); ++box) {
        if (boxes[box].place == BoxPlace::Beneath && !stacks.empty()) {
            stacks.back().height += gapInChartStack + boxes[box].height;
        } else {
            ChartStack& stack = stacks.emplace_back();
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
        ChartStack& parent = stacks[stacks[number].parent];
        stacks[number].nextSibling = parent.firstChild;
        parent.firstChild = number;
    }
    return stacks;
}

/// How far below its own origin the lower of two parts must go to clear the upper one in every column.
int Clearance(Contour& upper, Contour& lower)
{
    int clearance = std::numeric_limits<int>::min();
    for (std::size_t column = 0; column < std::min(upper.levels.size(), lower.levels.size()); ++column) {
        const int gap = column == 0 ? gapOfSiblings : gapOfCousins;
        const int bottom = upper.level(column).bottom + upper.shift;
        clearance = std::max(clearance, bottom + gap - lower.level(column).top - lower.shift);
    }
    return clearance;
}

/// Joins the lower contour to the upper one. Only the columns that both have are gone through: each such step makes one
/// of two levels disappear for good, which is why the time is in proportion to the number of stacks.
void Join(Contour& upper, Contour&& lower)
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

/// Packs the descendants of every stack as tightly as their contours allow, and sets the stack beside their middle.
class Packing
{
public:
    explicit Packing(std::vector<ChartStack>& stacks) : m_stacks(stacks), m_contours(stacks.size()) {}

    /// Gives every stack its place.
    void run()
    {
        for (auto number = static_cast<StackNumber>(m_stacks.size()); number-- > 0;) {
            pack(number);
        }
        int top = 0;
        for (const Contour::Level& level : m_contours.front().levels) {
            top = std::min(top, level.top + m_contours.front().shift);
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
        const ChartStack& stack = m_stacks[number];
        Contour contour;
        StackNumber last = noStack;
        for (StackNumber child = stack.firstChild; child != noStack; child = m_stacks[child].nextSibling) {
            Contour& below = m_contours[child];
            if (last == noStack) {
                contour = std::move(below);
                m_stacks[child].top = 0;
            } else {
                m_stacks[child].top = Clearance(contour, below);
                below.shift += m_stacks[child].top;
                Join(contour, std::move(below));
            }
            below = Contour();
            last = child;
        }
        if (last != noStack) {
            const int middle = std::min((m_stacks[last].top + m_stacks[last].height) / 2, longestLead);
            const int shift = stack.height / 2 - middle;
            for (StackNumber child = stack.firstChild; child != noStack; child = m_stacks[child].nextSibling) {
                m_stacks[child].top += shift;
            }
            contour.shift += shift;
        }
        contour.levels.push_back({-contour.shift, stack.height - contour.shift});
        m_contours[number] = std::move(contour);
    }

    std::vector<ChartStack>& m_stacks;
    std::vector<Contour> m_contours;
};

} // namespace

std::vector<ChartStack> PackStacks(std::span<const ChartBox> boxes)
{
    std::vector<ChartStack> stacks = StacksOf(boxes);
    if (!stacks.empty()) {
        Packing(stacks).run();
    }
    return stacks;
}

} // namespace stemwright
