// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/textextent.h"

#include <gtest/gtest.h>

#include <string>

namespace stemwright::test
{

TEST(TextExtent, LinesAreCounted)
{
    struct Case {
        std::string html;
        int lines;
    };

    // Ten characters of the size of a digit go into a line.
    const std::vector<Case> cases = {
        {"", 1},
        {"1234567890", 1},
        {"1234567890 1", 2},
        {"12345 67890", 2},
        {"123 567 90", 1},
        {"<B>1234567890</B>", 2},
        {"123<BR>45", 2},
        {"123<br/><br>45", 3},
        {"12345678901234567890123", 3},
        {"<A HREF=\"a page of a very long name.html\">12345</A>", 1},
        {"&amp;&#49;&quot;", 1},
        {"12345&nbsp;67890", 2},
        {"&#23567;&#26126;&#23567;&#26126;&#23567;&#26126;&#23567;", 2},
        {"12345,<WBR>67890", 2},
        {"1234567 <IMG SRC=\"graphics/photo.gif\">", 2},
        {"1&#769;2&#769;3&#769;4&#769;5&#769;6&#769;7890", 1},
        {"&", 1},
        {"<", 1},
        {"&#99999999999;", 2},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(LinesOf(each.html, 10, 64), each.lines) << each.html;
    }
}

} // namespace stemwright::test
