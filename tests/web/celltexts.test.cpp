// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/celltexts.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(CellTexts, ProperCase)
{
    for (const auto& [text, expected] :
         std::vector<std::pair<const char*, const char*>>{{"12 JAN 1900", " 12 Jan 1900"},
                                                          {"abt 1850", " Abt 1850"},
                                                          {"\u00e9T\u00c9  X", " \u00c9t\u00e9  X"},
                                                          {"", " "}}) {
        EXPECT_EQ(ProperCase(text), expected);
    }
}

TEST(CellTexts, LinesStandUnderEachOther)
{
    EXPECT_EQ(TextCell("Leeds\r\n<York>\n"), "Leeds<BR>&lt;York&gt;<BR>");
}

} // namespace stemwright::test
