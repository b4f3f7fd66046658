// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/privacy.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Privacy, TestLooksAtDeathAndYearOfBirth)
{
    using Value = std::optional<std::string_view>;

    struct Case {
        Value birthDate;
        Value deathDate;
        Value deathPlace;
        int maxAge;
        bool isProtected;
    };

    for (const Case& each : std::vector<Case>{{"1 JAN 1912", {}, {}, 90, true},
                                              {"1911", {}, {}, 90, false},
                                              {"12 MAR 2010", {}, {}, 90, true},
                                              {"1990 ", {}, {}, 90, true},
                                              {{}, {}, {}, 90, false},
                                              {"", {}, {}, 90, false},
                                              {"abt 1990?", {}, {}, 90, false},
                                              {"990", {}, {}, 2000, false},
                                              {"1990", "2000", {}, 90, false},
                                              {"1990", {}, "London", 90, false},
                                              {"1990", "", {}, 90, false},
                                              {"2002", {}, {}, 0, true}}) {
        constexpr int currentYear = 2002;
        EXPECT_EQ(IsPrivacyProtected(each.birthDate, each.deathDate, each.deathPlace, each.maxAge, currentYear),
                  each.isProtected)
            << each.birthDate.value_or("Null");
    }
}

} // namespace stemwright::test
