// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/pattern.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Pattern, FitsAsTheFamilyFilesOperatorDoes)
{
    for (const QStringList& row : TestTable("base/patterns.txt")) {
        const bool fits = row[2] == "yes";
        EXPECT_EQ(MatchesPattern(row[1], row[0]), fits) << row.join(u' ');
        const Pattern ready(row[0]);
        const bool begins = Pattern::folded(row[1]).startsWith(ready.beginning());
        EXPECT_TRUE(ready.endsFreely() ? begins == fits : begins || !fits) << row.join(u' ');
    }
}

TEST(Pattern, ManyRunsDoNotTakeForEver)
{
    const QString text(20000, u'a');
    EXPECT_FALSE(MatchesPattern(text, u"*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

} // namespace stemwright::test
