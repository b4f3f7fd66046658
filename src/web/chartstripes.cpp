// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/chartstripes.h"

#include <algorithm>

namespace stemwright
{

namespace
{

constexpr int lowestStripe = 180;

std::vector<BoxNumber> FromTopToBottom(const std::vector<PlacedBox>& boxes)
{
    std::vector<BoxNumber> order(boxes.size());
    for (BoxNumber box = 0; box < boxes.size(); ++box) {
        order[box] = box;
    }
    std::stable_sort(order.begin(), order.end(),
                     [&boxes](BoxNumber first, BoxNumber second) { return boxes[first].top < boxes[second].top; });
    return order;
}

void AddLine(std::vector<ChartStripe>& stripes, const ChartLine& line)
{
    auto stripe = std::upper_bound(stripes.begin(), stripes.end(), line.top,
                                   [](int top, const ChartStripe& each) { return top < each.bottom; });
    for (; stripe != stripes.end() && (stripe->top < line.bottom || stripe->top <= line.top); ++stripe) {
        stripe->lines.push_back(
            {line.left, std::max(line.top, stripe->top), line.right, std::min(line.bottom, stripe->bottom)});
    }
}

} // namespace

std::vector<ChartStripe> CutIntoStripes(const ChartLayout& chart)
{
    std::vector<ChartStripe> stripes(1);
    // The lowest end of the boxes so far.
    int bottom = 0;
    for (const BoxNumber box : FromTopToBottom(chart.boxes)) {
        const int top = chart.boxes[box].top;
        if (top > bottom && (top + bottom) / 2 - stripes.back().top >= lowestStripe) {
            stripes.back().bottom = (top + bottom) / 2;
            stripes.push_back({stripes.back().bottom, 0, {}, {}});
        }
        bottom = std::max(bottom, chart.boxes[box].bottom());
        stripes.back().boxes.push_back(box);
    }
    stripes.back().bottom = chart.height;
    for (const ChartLine& line : chart.lines) {
        AddLine(stripes, line);
    }
    return stripes;
}

} // namespace stemwright
