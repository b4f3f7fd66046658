// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/trees/chartlayout.h"

/// Makes a chart fit for paper, which ends a sheet where it likes: finds heights at which no box is cut. Boxes of
/// several columns seldom end together, so those below such a height are moved down a little where that is what it
/// takes. Nothing here fails. Stands on the boxes of the layout.
namespace stemwright
{

/// Moves boxes down, all below a cut by as much, and returns the heights of the cuts from top to bottom: some
/// centimetres apart, further only where a box is too tall to be avoided.
std::vector<int> MakeCuts(std::vector<PlacedBox>& boxes);

/// From `top` down to `bottom`. Boxes and lines have the coordinates of the chart; a line that crosses several stripes
/// has a piece in each of them.
struct ChartStripe {
    int top = 0;
    int bottom = 0;
    std::vector<BoxNumber> boxes;
    std::vector<ChartLine> lines;
};

/// The parts of a chart between its cuts, from top to bottom.
std::vector<ChartStripe> CutIntoStripes(const ChartLayout& chart);

} // namespace stemwright
