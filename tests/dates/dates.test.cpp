// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "dates/datepicker.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

QString Encode(const char* qualifier, int year, int month, int day)
{
    auto y = static_cast<std::int16_t>(year);
    auto m = static_cast<std::int16_t>(month);
    auto d = static_cast<std::int16_t>(day);
    return EncodeDate(QString::fromLatin1(qualifier), y, m, d);
}

} // namespace

TEST(EncodedDate, EncodesEveryPrecisionAndUnknownPart)
{
    EXPECT_EQ(Encode("", 1950, 0, 0), u"195000001");
    EXPECT_EQ(Encode("Aft.", 1950, 0, 0), u"195099999");
    EXPECT_EQ(Encode("Aft.", 1950, 3, 0), u"195003999");
    EXPECT_EQ(Encode("Bef.", 1950, 3, 0), u"195003000");
    EXPECT_EQ(Encode("Abt.", 1950, 3, 12), u"195003122");
    EXPECT_EQ(Encode("aft.", 1950, 3, 12), u"195003129");
    EXPECT_EQ(Encode("", 0, 0, 0), u"999999999");
    EXPECT_EQ(Encode("Abt.", 0, 0, 0), u"000000002");
    EXPECT_EQ(Encode("", -5, -1, -1), u"999999999");
    EXPECT_EQ(Encode("", 476, 9, 4), u"047609041");
}

TEST(EncodedDate, SortsBeforeExactAboutAfterWithinOneDayAndYear)
{
    const QStringList order = {Encode("Bef.", 1900, 0, 0),
                               Encode("", 1900, 0, 0),
                               Encode("Abt.", 1900, 0, 0),
                               Encode("Bef.", 1900, 5, 2),
                               Encode("", 1900, 5, 2),
                               Encode("Abt.", 1900, 5, 2),
                               Encode("Aft.", 1900, 5, 2),
                               Encode("", 1900, 12, 31),
                               Encode("Aft.", 1900, 0, 0),
                               Encode("Bef.", 1901, 0, 0),
                               noEncodedDate};
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(EncodedDate, DecodesToTextWithItsLeadingSpace)
{
    TestWorld world;
    EXPECT_EQ(EncodedDateToText(QStringLiteral("195099999"), world.talk), u"Aft. 1950");
    EXPECT_EQ(EncodedDateToText(QStringLiteral("195001121"), world.talk), u" 12 Jan 1950");
    EXPECT_EQ(EncodedDateToText(QStringLiteral("193106000"), world.talk), u"Bef. June 1931");
    EXPECT_EQ(EncodedDateToText(noEncodedDate, world.talk), u"");
    world.talk.expect(QStringLiteral("Internal Error: Bad last character in the date string"));
    EXPECT_FALSE(DecodeDate(QStringLiteral("195001125"), world.talk));
}

TEST(DatePicker, RefusesImpossibleDatesWithTheirTexts)
{
    const QString correct = QStringLiteral("Please press OK and correct the date.");
    const std::pair<const char*, const char*> cases[] = {
        {"29 Feb 1900", "Date \"29 Feb 1900\" is invalid. \n\n"},
        {"Abt. 31 Apr 1950", "Date \"31 Apr 1950\" is invalid. \n\n"},
        {"Abt. 12 1950", "Date \"Abt. 12  1950\" is invalid. \nYou can't supply the day without the month. \n\n"},
        {"12 March", "Date \" 12 Mar \" is invalid.  \nYou can't supply the month without the year. \n\n"},
        {"Mar 0", "Date \"  Mar 0\" is invalid.  \nYou must provide at least the year value. \n\n"},
        {"Mar 2101", "Year \"2101\" is invalid. The year must be between 1 and 2100.\n\n"}};
    for (const auto& [typed, begin] : cases) {
        TestWorld world;
        const QString text = QString::fromLatin1(begin) + correct;
        world.talk.expect(text);
        EXPECT_FALSE(PickTypedDate(QString::fromLatin1(typed), world.talk)) << typed;
        EXPECT_EQ(world.talk.shown().front().text, text);
    }
}

TEST(DatePicker, TakesTypedDatesOfEveryPrecision)
{
    TestWorld world;
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"Abt. 12 Mar 1950", "Abt. 12 Mar 1950", "195003122"},
        {"aft 1950", "Aft. 1950", "195099999"},
        {" june  1931", " June 1931", "193106001"},
        {"29 February 2000", " 29 Feb 2000", "200002291"},
        {"1900", " 1900", "190000001"},
        {"", "", "999999999"}};
    for (const auto& [typed, text, encoded] : cases) {
        const auto picked = PickTypedDate(QString::fromLatin1(typed), world.talk);
        ASSERT_TRUE(picked) << typed;
        EXPECT_EQ(picked->text, QString::fromLatin1(text));
        EXPECT_EQ(picked->encoded, QString::fromLatin1(encoded));
    }
    world.talk.expect(QStringLiteral("\"the day after\" is not a date"));
    EXPECT_FALSE(PickTypedDate(QStringLiteral("the day after"), world.talk));
}

TEST(DatePicker, ShowsAnEncodedDateAndGivesItBack)
{
    TestWorld world;
    for (const char* encoded : {"195003122", "195099999", "047609041", "190000000"}) {
        DatePicker picker;
        picker.ShowEncodedDate(QString::fromLatin1(encoded), world.talk);
        EXPECT_EQ(picker.accept(world.talk)->encoded, QString::fromLatin1(encoded));
    }
    DatePicker picker;
    picker.ShowEncodedDate(QStringLiteral("195003122"), world.talk);
    picker.ShowEncodedDate(QString(), world.talk);
    EXPECT_EQ(picker.accept(world.talk)->encoded, noEncodedDate);
}

} // namespace stemwright::test
