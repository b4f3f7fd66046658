// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/markplace.h"

#include "base/error.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(MarkPlace, IsTheShownPointerAtFullSize)
{
    const std::pair<PointerOnPicture, MarkPlace> cases[] = {
        {{1500, 750, 900, 600, 0, 0, 15, 1}, {100, 50, 60, 40}},
        // Shown at half its size, the picture is twice as large as it looks.
        {{1500, 750, 900, 600, 0, 0, 15, 0.5}, {200, 100, 120, 80}},
        {{1620, 870, 900, 600, 120, 120, 15, 1}, {100, 50, 60, 40}},
        // Halves go to the even neighbour.
        {{30, 90, 150, 210, 0, 0, 60, 1}, {0, 2, 2, 4}},
        {{-30, -90, 20, 20, 0, 0, 60, 1}, {0, -2, 0, 0}},
    };
    for (const auto& [pointer, place] : cases) {
        EXPECT_EQ(GetPointerCoords(pointer), place) << pointer.pointerLeft;
    }
}

TEST(MarkPlace, ComesBackFromThePointerThatShowsIt)
{
    const MarkPlace place{123, 45, 67, 89};
    for (const double scale : {0.25, 0.37, 1.0, 1.9}) {
        EXPECT_EQ(GetPointerCoords(PointerAt(place, {0, 0, 0, 0, 300, 450, 15, scale})), place) << scale;
    }
}

TEST(MarkPlace, IsASmallNumber)
{
    EXPECT_EQ(GetPointerCoords({32767, 0, 0, 0, 0, 0, 1, 1}).x, 32767);
    EXPECT_THROW(GetPointerCoords({32768, 0, 0, 0, 0, 0, 1, 1}), Error);
    EXPECT_THROW(GetPointerCoords({100, 0, 0, 0, 0, 0, 15, 0}), Error);
}

TEST(MarkPlace, IsReadFromNumbersAlone)
{
    EXPECT_EQ(ReadMarkPlace("12,34"), (MarkPlace{12, 34, std::nullopt, std::nullopt}));
    EXPECT_EQ(ReadMarkPlace(" 12, 34 , 5,6"), (MarkPlace{12, 34, 5, 6}));
    for (const char* typed : {"", "12", "a,b", "1x,2", "1,2,3", "1,2,3,4,5", "1.5,2", "1,2,-3,4", "40000,1", "1;2",
                              "99999999999999999999,1", "١,٢"}) {
        EXPECT_THROW(ReadMarkPlace(typed), Error) << typed;
    }
}

TEST(MarkPlace, LiesWithinItsPicture)
{
    const auto none = std::nullopt;
    const std::tuple<MarkPlace, PointerTool, bool> cases[] = {
        {{0, 0, 400, 300}, PointerTool::Rectangle, true},      {{390, 290, 10, 10}, PointerTool::Rectangle, true},
        {{391, 290, 10, 10}, PointerTool::Rectangle, false},   {{390, 291, 10, 10}, PointerTool::Rectangle, false},
        {{-1, 0, 10, 10}, PointerTool::Rectangle, false},      {{10, 10, 0, 10}, PointerTool::Rectangle, false},
        {{10, 10, none, none}, PointerTool::Rectangle, false}, {{399, 299, none, none}, PointerTool::Arrow, true},
        {{400, 10, none, none}, PointerTool::Arrow, false},
    };
    for (const auto& [place, tool, fits] : cases) {
        const QString error = ErrorOf([&, &p = place, &t = tool] { RequireWithinPicture(p, {400, 300}, t); });
        EXPECT_EQ(error.isEmpty(), fits) << place.x << ',' << place.y;
    }
    EXPECT_THROW(RequireWithinPicture({0, 0, none, none}, {}, PointerTool::Arrow), Error);
}

} // namespace stemwright::test
