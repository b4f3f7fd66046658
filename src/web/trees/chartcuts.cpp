// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/chartcuts.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace stemwright
{

namespace
{

// The distance of two cuts as it should be, and how far boxes may be moved for one.
constexpr int shortestDistance = 120;
constexpr int longestDistance = 340;
constexpr int mostRoom = 120;

/// Between a cut and the boxes at both sides.
constexpr int gapAtCut = 4;

struct Cut {
    /// Boxes whose middle is further down are moved.
    int height = 0;
    /// How far the boxes above it reach below that height, and the boxes below it above; the latter is negative where
    /// there is a gap anyway.
    int reachDown = 0;
    int reachUp = 0;

    int room() const { return std::max(0, reachDown + reachUp + 2 * gapAtCut); }
};

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

/// Looks for the heights by going down along the ends of the boxes.
class CutSearch
{
public:
    explicit CutSearch(const std::vector<PlacedBox>& boxes) : m_boxes(boxes), m_order(FromTopToBottom(boxes)) {}

    std::vector<Cut> run()
    {
        std::vector<int> heights;
        heights.reserve(m_boxes.size());
        for (const PlacedBox& box : m_boxes) {
            heights.push_back(box.bottom());
        }
        std::sort(heights.begin(), heights.end());
        const int end = heights.back();
        for (const int height : heights) {
            if (m_best && height - m_last > longestDistance) {
                m_last = m_best->height;
                m_cuts.push_back(*std::exchange(m_best, std::nullopt));
            }
            if (height - m_last >= shortestDistance && end - height >= shortestDistance) {
                consider(height);
            }
        }
        return std::move(m_cuts);
    }

private:
    void consider(int height)
    {
        while (m_next < m_order.size() && m_boxes[m_order[m_next]].top < height) {
            m_crossed.push_back(m_order[m_next++]);
        }
        std::erase_if(m_crossed, [&](BoxNumber box) { return m_boxes[box].bottom() <= height; });
        Cut cut{height, 0, m_next < m_order.size() ? height - m_boxes[m_order[m_next]].top : -mostRoom};
        for (const BoxNumber number : m_crossed) {
            const PlacedBox& box = m_boxes[number];
            if (box.middle() > height) {
                cut.reachUp = std::max(cut.reachUp, height - box.top);
            } else {
                cut.reachDown = std::max(cut.reachDown, box.bottom() - height);
            }
        }
        if (cut.room() <= (m_best ? m_best->room() : mostRoom)) {
            m_best = cut;
        }
    }

    const std::vector<PlacedBox>& m_boxes;
    std::vector<BoxNumber> m_order;
    std::size_t m_next = 0;
    /// The boxes above the height under consideration that reach below it, and some that no longer do.
    std::vector<BoxNumber> m_crossed;
    std::vector<Cut> m_cuts;
    int m_last = 0;
    std::optional<Cut> m_best;
};

void AddLine(std::vector<ChartStripe>& stripes, const ChartLine& line)
{
    auto stripe = std::upper_bound(stripes.begin(), stripes.end(), line.top,
                                   [](int top, const ChartStripe& each) { return top < each.bottom; });
    do {
        stripe->lines.push_back(
            {line.left, std::max(line.top, stripe->top), line.right, std::min(line.bottom, stripe->bottom)});
    } while (++stripe != stripes.end() && stripe->top < line.bottom);
}

} // namespace

std::vector<int> MakeCuts(std::vector<PlacedBox>& boxes)
{
    const std::vector<Cut> cuts = CutSearch(boxes).run();
    std::vector<int> heights;
    // How far whatever is below so many cuts moves.
    std::vector<int> moves = {0};
    for (const Cut& cut : cuts) {
        heights.push_back(cut.height + cut.reachDown + gapAtCut + moves.back());
        moves.push_back(moves.back() + cut.room());
    }
    for (PlacedBox& box : boxes) {
        const auto above = std::lower_bound(cuts.begin(), cuts.end(), box.middle(),
                                            [](const Cut& cut, int middle) { return cut.height < middle; });
        box.top += moves[static_cast<std::size_t>(above - cuts.begin())];
    }
    return heights;
}

std::vector<ChartStripe> CutIntoStripes(const ChartLayout& chart)
{
    std::vector<ChartStripe> stripes;
    for (const int cut : chart.cuts) {
        stripes.push_back({stripes.empty() ? 0 : stripes.back().bottom, cut, {}, {}});
    }
    stripes.push_back({stripes.empty() ? 0 : stripes.back().bottom, chart.height, {}, {}});
    auto stripe = stripes.begin();
    for (const BoxNumber box : FromTopToBottom(chart.boxes)) {
        while (chart.boxes[box].top >= stripe->bottom) {
            ++stripe;
        }
        stripe->boxes.push_back(box);
    }
    for (const ChartLine& line : chart.lines) {
        AddLine(stripes, line);
    }
    return stripes;
}

} // namespace stemwright
