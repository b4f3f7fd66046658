// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "figures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::bench
{

TEST(Figures, RatioIsTheMedianOfTheRoundsNotTheRatioOfTheMedians)
{
    const PairResult odd = Summary(1'000, {{2, 1}, {9, 3}, {4, 4}}, 5);
    EXPECT_DOUBLE_EQ(odd.ours, 4);
    EXPECT_DOUBLE_EQ(odd.limit, 3);
    EXPECT_DOUBLE_EQ(odd.ratio, 2);
    EXPECT_DOUBLE_EQ(Summary(1'000, {{2, 1}, {4, 1}}, 5).ratio, 3);
}

TEST(Figures, TableJudgesRatiosGrowthAndPeaks)
{
    const Goals goals{2.5, 1.25, 40'000'000, 100};
    Table table;
    table.addResults("import",
                     {{1'000, 1, 0.1, 9, 1, 3},
                      {10'000, 2, 1, 2, 41'000'000, 3},
                      {100'000, 25, 10, 2.5, 50'000'001, 3},
                      {1'000'000, 320, 100, 3.2, 1, 2}},
                     goals);
    table.addUnmeasured("publish", Grouped(1'000'000), "too little memory");
    table.addPair("names", "8", {0, 0.00002, 0.0123, 0.5, 0, 9}, 1);
    table.addTime("slowest", "8", 0.011, 0.01);
    const std::string text = table.text();
    using testing::ContainsRegex;
    EXPECT_THAT(text, ContainsRegex("import, time +1,000 +1\\.00 s +0\\.1000 s +9\\.00 +<= 2\\.50 +missed +3\n"));
    EXPECT_THAT(text, ContainsRegex("import, time +100,000 +25\\.00 s +10\\.00 s +2\\.50 +<= 2\\.50 +met +3\n"));
    EXPECT_THAT(text, ContainsRegex("import, growth +to 100,000 +2\\.50 +2\\.00 +1\\.25 +<= 1\\.25 +met"));
    EXPECT_THAT(text, ContainsRegex("import, growth +to 1,000,000 +3\\.20 +2\\.50 +1\\.28 +<= 1\\.25 +missed"));
    EXPECT_THAT(text, testing::Not(ContainsRegex("growth +to 10,000 ")));
    EXPECT_THAT(text, ContainsRegex("import, memory +10,000 +41\\.0 MB +<= 41\\.0 MB +met"));
    EXPECT_THAT(text, ContainsRegex("import, memory +100,000 +50\\.0 MB +<= 50\\.0 MB +missed"));
    EXPECT_THAT(text, ContainsRegex("names +8 +0\\.0200 ms +0\\.0123 s +0\\.50 +<= 1\\.00 +met +9\n"));
    EXPECT_THAT(text, ContainsRegex("slowest +8 +0\\.0110 s +<= 0\\.0100 s +missed"));
    EXPECT_THAT(text, ContainsRegex("publish +1,000,000 +not measured: too little memory\n"));
}

} // namespace stemwright::bench
