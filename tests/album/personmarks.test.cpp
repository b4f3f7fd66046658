// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/albumworld.h"
#include "base/error.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString toArrow = QStringLiteral("Change Pointer to Arrow?");

} // namespace

TEST(PersonMarks, AreWrittenAsThePointerToolWantsThem)
{
    struct Case {
        PointerTool tool;
        const char* place;
        const char* line;
    };

    const std::vector<Case> cases = {
        {PointerTool::Rectangle, "20,30,40,50", "1 0 Tom 20 30 40 50"},
        {PointerTool::Rectangle, "20,30", "1 0 Tom 20 30 48 64"},
        {PointerTool::Rectangle, nullptr, "1 0 Tom   48 64"},
        {PointerTool::Arrow, "399,299", "1 0 Tom 399 299 0 0"},
        {PointerTool::Arrow, nullptr, "1 0 Tom   0 0"},
    };
    for (const Case& tested : cases) {
        AlbumWorld world;
        world.openPicture(tested.tool);
        std::optional<MarkPlace> place;
        if (tested.place != nullptr) {
            place = world.editing.typedPlace(QString::fromLatin1(tested.place));
        }
        ASSERT_TRUE(world.editing.addName(QStringLiteral("Tom"), place));
        world.editing.apply();
        EXPECT_EQ(world.storedMarks(), QStringList(QString::fromLatin1(tested.line)));
    }
}

TEST(PersonMarks, RefusePlacesThatCannotBe)
{
    const std::vector<std::pair<PointerTool, const char*>> refused = {
        {PointerTool::Rectangle, "390,290,20,20"},
        {PointerTool::Rectangle, "390,290"},
        {PointerTool::Rectangle, "ten,twenty"},
        {PointerTool::Arrow, "10,10,20,20"},
        {PointerTool::Arrow, "400,10"},
        {PointerTool::Arrow, ""},
    };
    for (const auto& [tool, typed] : refused) {
        AlbumWorld world;
        world.openPicture(tool);
        EXPECT_THROW(world.editing.typedPlace(QString::fromLatin1(typed)), Error) << typed;
    }
}

TEST(PersonMarks, NameIndividualsInFull)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    EXPECT_TRUE(world.editing.addIndividual(7, std::nullopt));
    EXPECT_TRUE(world.editing.addIndividual(9, std::nullopt));
    EXPECT_THROW(world.editing.addIndividual(8, std::nullopt), Error);
    EXPECT_THROW(world.editing.addName(QStringLiteral("  "), std::nullopt), Error);
    EXPECT_THROW(world.editing.addName(QString(256, u'x'), std::nullopt), Error);
    world.editing.apply();
    EXPECT_EQ(world.storedMarks(),
              QStringList({QStringLiteral("1 7 Smith,  John    0 0"), QStringLiteral("1 9 Žižka, Sir Jan jr.   0 0")}));
}

TEST(PersonMarks, AskBeforeAnIndividualStandsTwiceInAPicture)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    const QString question = QStringLiteral("Confirm Duplicate Entry");
    EXPECT_TRUE(world.editing.addIndividual(7, std::nullopt));
    world.talk.expect(question, Button::No).expect(question, Button::Yes);
    EXPECT_FALSE(world.editing.addIndividual(7, std::nullopt));
    EXPECT_TRUE(world.editing.addIndividual(7, std::nullopt));
    EXPECT_EQ(world.talk.shown()[0].text,
              QStringLiteral("This individual already features in the picture.\nDo you want "
                             "to add her/him nevertheless? \n"));
    EXPECT_TRUE(world.editing.addName(QStringLiteral("Tom"), std::nullopt));
    EXPECT_TRUE(world.editing.addName(QStringLiteral("Tom"), std::nullopt));
    EXPECT_EQ(world.editing.marks().all().size(), 4U);
}

TEST(PersonMarks, ShowInTheOrderOfNamesAndKeepTheirRows)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Arrow);
    for (const char* name : {"Zoe", "éva", "Adam", "Frank"}) {
        world.editing.addName(QString::fromUtf8(name), std::nullopt);
    }
    world.editing.apply();
    world.editing.EditPicRec(id);
    QStringList names;
    for (const PersonMark& mark : world.editing.marks().all()) {
        names << mark.name;
    }
    EXPECT_EQ(names.join(u' '), QStringLiteral("Adam éva Frank Zoe"));
    world.editing.pendingMarks().remove(2);
    world.editing.pendingMarks().change(0, QStringLiteral("Ruth"), MarkPlace{3, 4, {}, {}});
    EXPECT_TRUE(world.editing.marks().changed());
    world.editing.apply();
    world.editing.EditPicRec(id);
    world.editing.addName(QStringLiteral("Ben"), std::nullopt);
    world.editing.apply();
    EXPECT_EQ(world.storedMarks(), QStringList({QStringLiteral("1 0 Ruth 3 4 0 0"), QStringLiteral("1 0 éva   0 0"),
                                                QStringLiteral("1 0 Zoe   0 0"), QStringLiteral("1 0 Ben   0 0")}));
}

TEST(PersonMarks, LoseTheirSizesOnlyWithTheUsersConsent)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Rectangle);
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Arrow)) << "nothing to lose";
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Rectangle));
    world.editing.addName(QStringLiteral("Tom"), MarkPlace{1, 2, 30, 40});
    world.editing.apply();
    world.editing.EditPicRec(id);
    world.talk.expect(toArrow, Button::Cancel).expect(toArrow, Button::Ok);
    EXPECT_FALSE(world.editing.RectangleOnOff(PointerTool::Arrow));
    EXPECT_EQ(world.editing.record().pointer, PointerTool::Rectangle);
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Arrow));
    world.editing.apply();
    EXPECT_EQ(world.storedMarks(), QStringList(QStringLiteral("1 0 Tom 1 2 0 0")));
}

TEST(PersonMarks, TakeOddNumbersOfOtherProgramsForNone)
{
    AlbumWorld world;
    world.connection.execute(QStringLiteral(
        "INSERT INTO Pic2Person (PicId, PersId, Name, X, Y) VALUES (5, 0, 'a', 'x', '3'), (5, 0, 'b', '7', '3'), "
        "(6, 0, 'c', '1', '1'), (5, NULL, NULL, NULL, NULL)"));
    PersonMarks marks;
    marks.LoadPersonList(world.connection, 5);
    ASSERT_EQ(marks.all().size(), 3U);
    EXPECT_FALSE(marks.all()[1].place.has_value());
    EXPECT_EQ(marks.all()[2].place, (MarkPlace{7, 3, std::nullopt, std::nullopt}));
}

} // namespace stemwright::test
