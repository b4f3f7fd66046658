// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(Text, SameNameSeesNoCaseAndNoBlanksAtTheEnd)
{
    const std::tuple<const char16_t*, const char16_t*, bool> cases[] = {
        {u"Default", u"default  ", true},
        {u"Default", u" Default", false},
        {u"", u"  ", true},
        {u"", u"a", false},
        {u"Élise", u"éLISE", true},
        {u"Élise", u"Elise", false},
        {u"E\u0301lise", u"Élise", true},
        {u"Яков", u"яКОВ", true},
        {u"ΣΟΦΙΑ", u"σοφια", true},
        {u"Smith, John", u"Smith,John", false},
        {u"O'Brien", u"OBrien", false},
        {u"007", u"7", false},
    };
    for (const auto& [one, other, same] : cases) {
        const QString first = QString::fromUtf16(one);
        const QString second = QString::fromUtf16(other);
        EXPECT_EQ(SameName(first, second), same) << first.toStdString() << " / " << second.toStdString();
        EXPECT_EQ(CollationKey(first) == CollationKey(second), same) << first.toStdString();
        EXPECT_EQ(CompareTexts(first.toStdString(), second.toStdString()) == 0, same) << first.toStdString();
    }
}

TEST(Text, NamesSortAsAReaderExpects)
{
    const QString ordered[] = {QStringLiteral(""),      QStringLiteral("12"),     QStringLiteral("Eaton"),
                               QStringLiteral("Edel"),  QStringLiteral("Édel"),   QStringLiteral("edele"),
                               QStringLiteral("Ez"),    QStringLiteral("Łopacz"), QStringLiteral("Lopez"),
                               QStringLiteral("Ñandú"), QStringLiteral("Ng"),     QStringLiteral("Zander"),
                               QStringLiteral("Ωμέγα"), QStringLiteral("Иван"),   QStringLiteral("йод"),
                               QStringLiteral("Яков"),  QStringLiteral("אברהם"),  QStringLiteral("王")};
    for (std::size_t index = 1; index < std::size(ordered); ++index) {
        const QString& first = ordered[index - 1];
        const QString& second = ordered[index];
        EXPECT_LT(CompareTexts(first, second), 0) << first.toStdString() << " / " << second.toStdString();
        EXPECT_LT(CompareTexts(first.toStdString(), second.toStdString()), 0) << first.toStdString();
        EXPECT_LT(CollationKey(first), CollationKey(second)) << first.toStdString();
    }
}

TEST(Text, KeysOfLongTextsAreWhole)
{
    const QString begin(5000, u'ä');
    EXPECT_LT(CollationKey(begin + u'a'), CollationKey(begin + u'b'));
    EXPECT_EQ(CollationKey(begin + u'a'), CollationKey(begin.toUpper() + u'A'));
}

} // namespace stemwright::test
