// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

/// Where the rectangles of a tree and the lines between them go. A chart grows from left to right: a column for each
/// generation, in which the rectangles of a person and of his or her spouses stand on each other, beside the middle of
/// the next generation (near its upper end where that would be too far). Rows of wrapped text are stacked better than
/// they are put side by side, twelve children are a tall page rather than a very wide one, and tall pages are what
/// browsers scroll and printers print. All measures are pixels, from the left upper corner of the chart. Nothing here
/// fails. Stands on nothing.
namespace stemwright
{

/// The number of a box in its chart, 0-based.
using BoxNumber = std::uint32_t;

inline constexpr BoxNumber noBox = std::numeric_limits<BoxNumber>::max();

/// The width of a box, and by how much one that stands beneath another is narrower and further right.
inline constexpr int chartBoxWidth = 190;
inline constexpr int chartIndentation = 14;

/// Beneath: a spouse under the person. Beside: one of the next generation, joined to the person or to the spouse.
enum class BoxPlace : std::uint8_t { Beneath, Beside };

/// A rectangle that is to be placed.
struct ChartBox {
    /// The room for it, an even number.
    int height = 0;
    /// `noBox` for the first one.
    BoxNumber joinedTo = noBox;
    BoxPlace place = BoxPlace::Beside;
};

/// The place of a box's room; what is drawn keeps to its middle.
struct PlacedBox {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int right() const { return left + width; }

    int bottom() const { return top + height; }

    int middle() const { return top + height / 2; }
};

/// A line from left to right or from top to bottom.
struct ChartLine {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    friend bool operator==(const ChartLine&, const ChartLine&) = default;
};

struct ChartLayout {
    int width = 0;
    int height = 0;
    /// In the order of the boxes.
    std::vector<PlacedBox> boxes;
    std::vector<ChartLine> lines;
    /// Heights at which a sheet of paper may end, since no box is there, from top to bottom.
    std::vector<int> cuts;
};

/// Lays out one tree. Every box follows the one to which it is joined, those beneath a box follow it directly, and
/// those beside a box, in the order from top to bottom, come with all that is joined to them before the next one does.
/// Takes time in proportion to the number of boxes, and does not recurse.
ChartLayout LayOutChart(std::span<const ChartBox> boxes);

} // namespace stemwright
