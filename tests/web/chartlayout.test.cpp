// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/trees/chartlayout.h"

#include "web/trees/chartcuts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <random>
#include <set>

namespace stemwright::test
{

namespace
{

/// A tree of about `size` boxes as pages have them: persons with up to three spouses, some with twelve children.
std::vector<ChartBox> AnyTree(unsigned seed, std::size_t size)
{
    std::mt19937 random(seed);
    const auto below = [&random](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    std::vector<ChartBox> boxes;
    std::vector<BoxNumber> waiting = {noBox};
    while (!waiting.empty() && boxes.size() < size) {
        const auto person = static_cast<BoxNumber>(boxes.size());
        boxes.push_back({28 + 18 * below(7), waiting.back()});
        waiting.pop_back();
        const std::size_t already = waiting.size();
        for (int spouse = 0; spouse < (boxes.size() < 9 ? 2 : below(4)); ++spouse) {
            boxes.push_back({28 + 18 * below(12), person, BoxPlace::Beneath});
            waiting.insert(waiting.end(), static_cast<std::size_t>(below(9) == 0 ? 12 : 1 + below(4)),
                           static_cast<BoxNumber>(boxes.size() - 1));
        }
        std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(already), waiting.end());
    }
    return boxes;
}

bool Touch(const ChartLine& one, const ChartLine& other)
{
    return one.left <= other.right && other.left <= one.right && one.top <= other.bottom && other.top <= one.bottom;
}

/// The boxes that hang together by lines: each set of lines that touch, as the boxes on whose edges it ends.
std::multiset<std::set<BoxNumber>> Joined(const std::vector<PlacedBox>& boxes, const std::vector<ChartLine>& lines)
{
    std::vector<std::size_t> group(lines.size());
    std::iota(group.begin(), group.end(), 0);
    for (std::size_t one = 0; one < lines.size(); ++one) {
        for (std::size_t other = 0; other < one; ++other) {
            if (group[one] != group[other] && Touch(lines[one], lines[other])) {
                std::replace(group.begin(), group.end(), group[one], group[other]);
            }
        }
    }
    std::map<std::size_t, std::set<BoxNumber>> joined;
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (BoxNumber box = 0; box < boxes.size(); ++box) {
            const PlacedBox& place = boxes[box];
            const bool crosses = Touch({place.left, place.top, place.right(), place.bottom()}, lines[line]);
            if (crosses) {
                joined[group[line]].insert(box);
            }
        }
    }
    std::multiset<std::set<BoxNumber>> sets;
    for (const auto& [number, set] : joined) {
        sets.insert(set);
    }
    return sets;
}

/// The same as it should be.
std::multiset<std::set<BoxNumber>> Joins(const std::vector<ChartBox>& boxes)
{
    std::map<std::pair<BoxNumber, BoxPlace>, std::set<BoxNumber>> joins;
    for (BoxNumber box = 1; box < boxes.size(); ++box) {
        joins[{boxes[box].joinedTo, boxes[box].place}].insert({boxes[box].joinedTo, box});
    }
    std::multiset<std::set<BoxNumber>> sets;
    for (const auto& [join, set] : joins) {
        sets.insert(set);
    }
    return sets;
}

bool Overlap(const PlacedBox& one, const PlacedBox& other)
{
    return one.left < other.right() && other.left < one.right() && one.top < other.bottom() && other.top < one.bottom();
}

} // namespace

TEST(ChartLayout, NothingOverlapsAndLinesJoinWhatBelongsTogether)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        const std::vector<ChartBox> boxes = AnyTree(seed, 70);
        const ChartLayout chart = LayOutChart(boxes);
        ASSERT_EQ(chart.boxes.size(), boxes.size());
        for (BoxNumber box = 0; box < boxes.size(); ++box) {
            const PlacedBox& place = chart.boxes[box];
            EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right() <= chart.width &&
                        place.bottom() <= chart.height);
            for (BoxNumber other = 0; other < box; ++other) {
                EXPECT_FALSE(Overlap(place, chart.boxes[other])) << seed << ": " << other << ", " << box;
            }
        }
        EXPECT_EQ(Joined(chart.boxes, chart.lines), Joins(boxes)) << seed;
    }
}

TEST(ChartLayout, PackedTightlyWithParentsBesideTheMiddle)
{
    // 0 with 1 beneath; 2, 3 and 5 are the children of 1, 4 is the child of 3.
    const std::vector<ChartBox> boxes = {{40},
                                         {60, 0, BoxPlace::Beneath},
                                         {40, 1, BoxPlace::Beside},
                                         {40, 1, BoxPlace::Beside},
                                         {100, 3, BoxPlace::Beside},
                                         {40, 1, BoxPlace::Beside}};
    const std::vector<PlacedBox> placed = LayOutChart(boxes).boxes;
    EXPECT_EQ(placed[3].top - placed[2].bottom(), placed[5].top - placed[3].bottom());
    EXPECT_EQ(placed[4].middle(), placed[3].middle());
    EXPECT_EQ(placed[0].top + placed[1].bottom(), placed[2].top + placed[5].bottom());
    EXPECT_EQ(placed[2].left, placed[5].left);
    EXPECT_GT(placed[1].left, placed[0].left);

    // A dozen childless children are not parted by what the first one's descendants need, which stand beside them.
    std::vector<ChartBox> family = {{40}};
    family.push_back({40, 0});
    family.insert(family.end(), 8, {40, 1});
    family.insert(family.end(), 11, {40, 0});
    const ChartLayout chart = LayOutChart(family);
    EXPECT_LT(chart.height, 8 * 60 + 11 * 60);
    EXPECT_LT(chart.boxes[0].middle() - chart.boxes[1].middle(), 320);
}

TEST(ChartLayout, CutsMissAllBoxesAndStripesHoldEverything)
{
    for (unsigned seed = 100; seed < 120; ++seed) {
        const std::vector<ChartBox> boxes = AnyTree(seed, 300);
        const ChartLayout chart = LayOutChart(boxes);
        std::vector<BoxNumber> seen;
        std::vector<ChartLine> pieces;
        int bottom = 0;
        for (const ChartStripe& stripe : CutIntoStripes(chart)) {
            EXPECT_EQ(stripe.top, bottom);
            bottom = stripe.bottom;
            for (const BoxNumber box : stripe.boxes) {
                EXPECT_TRUE(chart.boxes[box].top >= stripe.top && chart.boxes[box].bottom() <= stripe.bottom);
            }
            for (const ChartLine& line : stripe.lines) {
                EXPECT_TRUE(line.top >= stripe.top && line.bottom <= stripe.bottom);
            }
            seen.insert(seen.end(), stripe.boxes.begin(), stripe.boxes.end());
            pieces.insert(pieces.end(), stripe.lines.begin(), stripe.lines.end());
        }
        EXPECT_EQ(bottom, chart.height);
        EXPECT_EQ(std::set<BoxNumber>(seen.begin(), seen.end()).size(), boxes.size());
        EXPECT_EQ(seen.size(), boxes.size());
        EXPECT_EQ(Joined(chart.boxes, pieces), Joins(boxes)) << seed;
        EXPECT_GT(chart.cuts.size(), static_cast<std::size_t>(chart.height / 700)) << seed;
    }
}

TEST(ChartLayout, VeryLongLinesAndVeryLargeFamiliesAreLaidOut)
{
    std::vector<ChartBox> line(30'000, {40});
    for (BoxNumber box = 1; box < line.size(); ++box) {
        line[box].joinedTo = box - 1;
    }
    EXPECT_EQ(LayOutChart(line).height, 40);
    std::vector<ChartBox> family(30'000, {40, 0});
    family.front().joinedTo = noBox;
    EXPECT_EQ(LayOutChart(family).boxes.back().left, LayOutChart(family).boxes[1].left);
    EXPECT_TRUE(LayOutChart({}).boxes.empty());
}

} // namespace stemwright::test
