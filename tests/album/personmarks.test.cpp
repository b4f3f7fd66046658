// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/albumworld.h"
#include "base/error.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(PersonMarks, AreWrittenAsThePointerToolWantsThem)
{
    const std::tuple<PointerTool, QString, QString> cases[] = {
        {PointerTool::Rectangle, "20,30,40,50", "1 0 Tom 20 30 40 50"},
        {PointerTool::Rectangle, "20,30", "1 0 Tom 20 30 48 64"},
        {PointerTool::Rectangle, QString(), "1 0 Tom   48 64"},
        {PointerTool::Rectangle, "390,290", "refused"},
        {PointerTool::Rectangle, "ten,twenty", "refused"},
        {PointerTool::Arrow, "399,299", "1 0 Tom 399 299 0 0"},
        {PointerTool::Arrow, QString(), "1 0 Tom   0 0"},
        {PointerTool::Arrow, "10,10,20,20", "refused"},
        {PointerTool::Arrow, "400,10", "refused"},
    };
    for (const auto& [tool, typed, line] : cases) {
        AlbumWorld world;
        world.openPicture(tool);
        const auto mark = [&world, &typed = typed] {
            const auto place = typed.isNull() ? std::nullopt : std::optional(world.editing.typedPlace(typed));
            EXPECT_TRUE(world.editing.addName("Tom", place));
            world.editing.apply();
        };
        EXPECT_EQ(ErrorOf(mark).isEmpty(), line != "refused") << typed;
        EXPECT_EQ(world.storedMarks(), line == "refused" ? QStringList() : QStringList{line}) << typed;
    }
}

TEST(PersonMarks, NameIndividualsInFull)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    EXPECT_TRUE(world.editing.addIndividual(7, std::nullopt));
    EXPECT_TRUE(world.editing.addIndividual(9, std::nullopt));
    EXPECT_THROW(world.editing.addIndividual(8, std::nullopt), Error);
    {
        const Transaction undone(world.file.connection());
        world.file.connection().execute("DELETE FROM Indi");
        world.talk.expect("The index of names does not exist.");
        EXPECT_FALSE(world.editing.addIndividual(7, std::nullopt));
    }
    EXPECT_THROW(world.editing.addName("  ", std::nullopt), Error);
    EXPECT_THROW(world.editing.addName(QString(256, u'x'), std::nullopt), Error);
    world.editing.apply();
    EXPECT_EQ(world.storedMarks(), (QStringList{"1 7 Smith,  John    0 0", "1 9 Žižka, Sir Jan jr.   0 0"}));
}

TEST(PersonMarks, AskBeforeAnIndividualStandsTwiceInAPicture)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    const QString question = "Confirm Duplicate Entry";
    EXPECT_TRUE(world.editing.addIndividual(7, std::nullopt));
    world.talk.expect(question, Button::No).expect(question, Button::Yes);
    EXPECT_FALSE(world.editing.addIndividual(7, std::nullopt));
    EXPECT_TRUE(world.editing.addIndividual(7, std::nullopt));
    EXPECT_TRUE(world.editing.addName("Tom", std::nullopt));
    EXPECT_TRUE(world.editing.addName("Tom", std::nullopt));
    EXPECT_EQ(world.editing.marks().all().size(), 4U);
}

TEST(PersonMarks, ShowInTheOrderOfNamesAndKeepTheirRows)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Arrow);
    for (const char* name : {"Zoe", "éva", "Adam", "Frank"}) {
        world.editing.addName(name, std::nullopt);
    }
    world.editing.apply();
    world.editing.EditPicRec(id);
    const std::vector<PersonMark>& marks = world.editing.marks().all();
    EXPECT_EQ((QStringList{marks.at(0).name, marks.at(1).name, marks.at(2).name}),
              (QStringList{"Adam", "éva", "Frank"}));
    world.editing.pendingMarks().remove(2);
    world.editing.pendingMarks().change(0, "Ruth", MarkPlace{3, 4, {}, {}});
    EXPECT_TRUE(world.editing.marks().changed());
    world.editing.apply();
    world.editing.EditPicRec(id);
    world.editing.addName("Ben", std::nullopt);
    world.editing.apply();
    EXPECT_EQ(world.storedMarks(),
              (QStringList{"1 0 Ruth 3 4 0 0", "1 0 éva   0 0", "1 0 Zoe   0 0", "1 0 Ben   0 0"}));
}

TEST(PersonMarks, LoseTheirSizesOnlyWithTheUsersConsent)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Rectangle);
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Arrow)) << "nothing to lose";
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Rectangle));
    world.editing.addName("Tom", MarkPlace{1, 2, 30, 40});
    world.editing.apply();
    world.editing.EditPicRec(id);
    const QString question = "Change Pointer to Arrow?";
    world.talk.expect(question, Button::Cancel).expect(question, Button::Ok);
    EXPECT_FALSE(world.editing.RectangleOnOff(PointerTool::Arrow));
    EXPECT_EQ(world.editing.record().pointer, PointerTool::Rectangle);
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Arrow));
    world.editing.apply();
    EXPECT_EQ(world.storedMarks(), QStringList("1 0 Tom 1 2 0 0"));
}

TEST(PersonMarks, TakeOddNumbersOfOtherProgramsForNone)
{
    AlbumWorld world;
    world.execute(
        "INSERT INTO Pic2Person (PicId, PersId, Name, X, Y) VALUES (5, 0, 'a', 'x', '3'), (5, 0, 'b', '7', '3'), "
        "(6, 0, 'c', '1', '1'), (5, NULL, NULL, NULL, NULL)");
    PersonMarks marks;
    marks.LoadPersonList(world.connection(), 5);
    ASSERT_EQ(marks.all().size(), 3U);
    EXPECT_FALSE(marks.all()[1].place.has_value());
    EXPECT_EQ(marks.all()[2].place, (MarkPlace{7, 3, std::nullopt, std::nullopt}));
}

TEST(PersonMarks, KeepThePlacesThatOtherProgramsWrote)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Rectangle);
    world.execute("INSERT INTO Pic2Person (PicId, PersId, Name, X, Y, Width, Height) VALUES "
                  "(1, NULL, 'a', '12.5', '7,75', '30.2', '40'), (1, 0, 'b', NULL, NULL, NULL, '50'), "
                  "(1, 0, 'c', 'left', '3 ', '', NULL), (1, 0, 'd', '1.5', '2.5', '3.5', '4.5')");
    world.editing.EditPicRec(id);
    const std::vector<PersonMark>& marks = world.editing.marks().all();
    EXPECT_EQ(marks.at(0).place, (MarkPlace{12, 8, 30, 40}));
    EXPECT_FALSE(marks.at(2).place.has_value());
    world.editing.setTitle("new");
    world.editing.pendingMarks().change(3, "f", MarkPlace{2, 2, 4, 5});
    world.editing.pendingMarks().change(2, "e", std::nullopt);
    world.editing.apply();
    QStringList rows = {"1 - a 12.5 7,75 30.2 40", "1 0 b - - 48 50", "1 0 e left 3  48 64", "1 0 f 2 2 4 5"};
    EXPECT_EQ(world.storedMarks(), rows);
    world.editing.EditPicRec(id);
    world.talk.expect("Change Pointer to Arrow?", Button::Ok);
    EXPECT_TRUE(world.editing.RectangleOnOff(PointerTool::Arrow));
    world.editing.apply();
    EXPECT_EQ(world.storedMarks().constFirst(), "1 - a 12.5 7,75 0 0");
}

} // namespace stemwright::test
