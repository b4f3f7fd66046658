// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/templates.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Templates, PlaceholdersAreReplacedLineByLine)
{
    const std::vector<Replacement> replacements = {
        {"$HomeLink", "<A>$Version</A>"}, {"$Version", "3.0"}, {"$Year", ""}};
    for (const auto& [content, expected] :
         std::vector<std::pair<const char*, const char*>>{{"a $homelink b\n", "a <A>3.0</A> b\r\n"},
                                                          {"$VERSION$Version\r\n\r\nlast", "3.03.0\r\n\r\nlast\r\n"},
                                                          {"$Year$Yea $SiteTitle", "$Yea $SiteTitle\r\n"},
                                                          {"", ""}}) {
        EXPECT_EQ(FillTemplate(content, replacements), expected) << content;
    }
}

} // namespace stemwright::test
