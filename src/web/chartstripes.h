// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/chartlayout.h"

/// Cuts a chart into stripes that lie under each other, where no box is cut, so that a printer may begin a sheet of
/// paper between any two of them. Nothing here fails. Stands on the layout.
namespace stemwright
{

/// From `top` down to `bottom`. Boxes and lines have the coordinates of the chart; a line that crosses several stripes
/// has a piece in each of them.
struct ChartStripe {
    int top = 0;
    int bottom = 0;
    std::vector<BoxNumber> boxes;
    std::vector<ChartLine> lines;
};

/// The stripes from top to bottom. None is lower than some centimetres, unless it is the last one.
std::vector<ChartStripe> CutIntoStripes(const ChartLayout& chart);

} // namespace stemwright
