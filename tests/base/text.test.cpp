// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/text.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Text, SameNameSeesNoCaseAndNoBlanksAtTheEnd)
{
    for (const QStringList& row : TestTable("base/samenames.txt")) {
        const QString &first = row[0], &second = row[1];
        const bool same = row[2] == "yes";
        EXPECT_EQ(SameName(first, second), same) << first << " / " << second;
        EXPECT_EQ(CollationKey(first) == CollationKey(second), same) << first;
        EXPECT_EQ(CompareTexts(first.toStdString(), second.toStdString()) == 0, same) << first;
    }
}

TEST(Text, NamesSortAsAReaderExpects)
{
    const QStringList ordered = QString(",12,Eaton,Edel,Édel,edele,Ez,Łopacz,Lopez,Ñandú,Ng,Zander,Ωμέγα,Иван,йод,Яков,"
                                        "אברהם,王")
                                    .split(u',');
    for (qsizetype index = 1; index < ordered.size(); ++index) {
        const QString& first = ordered[index - 1];
        const QString& second = ordered[index];
        EXPECT_LT(CompareTexts(first, second), 0) << first << " / " << second;
        EXPECT_LT(CompareTexts(first.toStdString(), second.toStdString()), 0) << first;
        EXPECT_LT(CollationKey(first), CollationKey(second)) << first;
    }
}

TEST(Text, KeysOfLongTextsAreWhole)
{
    const QString begin(5000, u'ä');
    EXPECT_LT(CollationKey(begin + u'a'), CollationKey(begin + u'b'));
    EXPECT_EQ(CollationKey(begin + u'a'), CollationKey(begin.toUpper() + u'A'));
}

} // namespace stemwright::test
