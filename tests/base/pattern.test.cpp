// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/pattern.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Pattern, FitsAsTheFamilyFilesOperatorDoes)
{
    const std::tuple<const char16_t*, const char16_t*, bool> cases[] = {
        {u"Smith*", u"smith, John", true},
        {u"Smith*", u"Blacksmith", false},
        {u"*smith*", u"Blacksmith, Ann", true},
        {u"_FA*", u"_FA12_Date", true},
        {u"_[FM]REL", u"_MREL", true},
        {u"_[FM]REL", u"_XREL", false},
        {u"[A-Z]", u"É", false},
        {u"[A-Z]", u"q", true},
        {u"[!0-9]*", u"1a", false},
        {u"[^0-9]%", u"1a", false},
        {u"1[-3]5", u"1-5", true},
        {u"19##", u"1923", true},
        {u"19##", u"19x3", false},
        {u"J?n", u"Jón", true},
        {u"%text%", u"a TEXT here", true},
        {u"%#1%", u"House #1", true},
        {u"%who?%", u"Who? Me", true},
        {u"%IMG_1%", u"IMG-1.jpg", true},
        {u"100%*", u"100% wool", true},
        {u"100%*", u"100 wool", false},
        {u"Я*", u"яков", true},
        {u"É*", u"e\u0301lise", true},
        {u"[x", u"[X", true},
        {u"", u"a", false},
        {u"*", u"", true},
        {u"*a*a*b", u"aaaaaaaaab", true},
    };
    for (const auto& [like, value, fits] : cases) {
        const QString pattern = QString::fromUtf16(like);
        const QString text = QString::fromUtf16(value);
        EXPECT_EQ(MatchesPattern(text, pattern), fits) << pattern.toStdString() << " / " << text.toStdString();
    }
}

TEST(Pattern, ManyRunsDoNotTakeForEver)
{
    const QString text(20000, u'a');
    EXPECT_FALSE(MatchesPattern(text, QStringLiteral("*a*a*a*a*a*a*a*a*a*a*a*a*b")));
}

} // namespace stemwright::test
