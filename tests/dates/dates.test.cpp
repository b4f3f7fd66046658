// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "dates/datepicker.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(EncodedDate, EncodesEveryPrecisionAndUnknownPart)
{
    for (const QStringList& row : TestTable("dates/encoded.txt")) {
        std::int16_t year = row[1].toShort();
        std::int16_t month = row[2].toShort();
        std::int16_t day = row[3].toShort();
        EXPECT_EQ(EncodeDate(row[0], year, month, day), row[4]) << row.join(u' ');
    }
}

TEST(EncodedDate, DecodesToTextWithItsLeadingSpace)
{
    TestWorld world;
    EXPECT_EQ(EncodedDateToText("195099999", world.talk), u"Aft. 1950");
    EXPECT_EQ(EncodedDateToText("195001121", world.talk), u" 12 Jan 1950");
    EXPECT_EQ(EncodedDateToText("193106000", world.talk), u"Bef. June 1931");
    EXPECT_EQ(EncodedDateToText(noEncodedDate, world.talk), u"");
    world.talk.expect("Internal Error: Bad last character in the date string");
    EXPECT_FALSE(DecodeDate("195001125", world.talk));
}

TEST(DatePicker, RefusesImpossibleDatesWithTheirTexts)
{
    for (const QStringList& row : TestTable("dates/impossible.txt")) {
        TestWorld world;
        const QString text = row[1] + "Please press OK and correct the date.";
        world.talk.expect(text);
        EXPECT_FALSE(PickTypedDate(row[0], world.talk)) << row[0];
        EXPECT_EQ(world.talk.shown().front().text, text);
    }
}

TEST(DatePicker, TakesTypedDatesOfEveryPrecision)
{
    TestWorld world;
    for (const QStringList& row : TestTable("dates/typed.txt")) {
        const auto picked = PickTypedDate(row[0], world.talk);
        ASSERT_TRUE(picked) << row[0];
        EXPECT_EQ((QStringList{row[0], picked->text, picked->encoded}), row);
    }
    world.talk.expect("\"the day after\" is not a date");
    EXPECT_FALSE(PickTypedDate("the day after", world.talk));
}

TEST(DatePicker, ShowsAnEncodedDateAndGivesItBack)
{
    TestWorld world;
    for (const char* encoded : {"195003122", "195099999", "047609041", "190000000"}) {
        DatePicker picker;
        picker.ShowEncodedDate(encoded, world.talk);
        EXPECT_EQ(picker.accept(world.talk)->encoded, encoded);
    }
    DatePicker picker;
    picker.ShowEncodedDate("195003122", world.talk);
    picker.ShowEncodedDate(QString(), world.talk);
    EXPECT_EQ(picker.accept(world.talk)->encoded, noEncodedDate);
}

} // namespace stemwright::test
