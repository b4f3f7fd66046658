// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/trees/chartlayout.h"

/// The first half of laying out a chart: how high everything stands. Persons with their spouses are stacked, and the
/// stacks packed. Nothing here fails. Stands on the boxes of the layout.
namespace stemwright
{

using StackNumber = std::uint32_t;

inline constexpr StackNumber noStack = std::numeric_limits<StackNumber>::max();

/// Between a person's rectangle and those of the spouses, in pixels.
inline constexpr int gapInChartStack = 6;

/// A person and the spouses beneath, who are placed together.
struct ChartStack {
    BoxNumber firstBox = 0;
    /// Of the first box that does not belong to it.
    BoxNumber end = 0;
    std::uint32_t column = 0;
    int height = 0;
    StackNumber parent = noStack;
    StackNumber firstChild = noStack;
    StackNumber nextSibling = noStack;
    /// From the chart's top; while the stacks are being packed, from the parent's.
    int top = 0;
};

/// The stacks of a tree in the order of their boxes, with their places: packed as tightly as their contours allow, each
/// beside the middle of those that come from it. Takes time in proportion to the number of boxes.
std::vector<ChartStack> PackStacks(std::span<const ChartBox> boxes);

} // namespace stemwright
