// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/pattern.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Pattern, FitsAsTheFamilyFilesOperatorDoes)
{
    struct Case {
        const char16_t* pattern;
        const char16_t* text;
        bool fits;
    };

    const Case cases[] = {
        {u"Smith*", u"smith, John", true},
        {u"Smith*", u"Smith", true},
        {u"Smith*", u"Blacksmith", false},
        {u"*smith*", u"Blacksmith, Ann", true},
        {u"_FA*", u"_FA12_Date", true},
        {u"_FA*", u"XFA12", false},
        {u"_[FM]REL", u"_MREL", true},
        {u"_[FM]REL", u"_frel", true},
        {u"_[FM]REL", u"_XREL", false},
        {u"_M*", u"_MSTAT", true},
        {u"[A-Z]", u"É", false},
        {u"[A-Z]", u"q", true},
        {u"[!0-9]*", u"a1", true},
        {u"[!0-9]*", u"1a", false},
        {u"[^0-9]%", u"1a", false},
        {u"1[-3]5", u"1-5", true},
        {u"19##", u"1923", true},
        {u"19##", u"19x3", false},
        {u"J?n", u"Jón", true},
        {u"J?n", u"Jn", false},
        {u"%text%", u"a TEXT here", true},
        {u"%text%", u"te xt", false},
        {u"%#1%", u"House #1", true},
        {u"%who?%", u"Who? Me", true},
        {u"%who?%", u"Whom", false},
        {u"%IMG_1%", u"IMG-1.jpg", true},
        {u"100%*", u"100% wool", true},
        {u"100%*", u"100 wool", false},
        {u"Я*", u"яков", true},
        {u"É*", u"e\u0301lise", true},
        {u"É*", u"Elise", false},
        {u"[x", u"[X", true},
        {u"", u"", true},
        {u"", u"a", false},
        {u"*", u"", true},
        {u"*a*a*b", u"aaaaaaaaab", true},
        {u"O'Brien", u"o'brien", true},
    };
    for (const Case& each : cases) {
        const QString text = QString::fromUtf16(each.text);
        const QString pattern = QString::fromUtf16(each.pattern);
        EXPECT_EQ(MatchesPattern(text, pattern), each.fits) << pattern.toStdString() << " / " << text.toStdString();
    }
}

TEST(Pattern, ManyRunsDoNotTakeForEver)
{
    const QString text(20000, u'a');
    EXPECT_FALSE(MatchesPattern(text, QStringLiteral("*a*a*a*a*a*a*a*a*a*a*a*a*b")));
}

} // namespace stemwright::test
