// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/picturelist.h"

#include "album/picturerecord.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString idBox = "Search by picture ID";

} // namespace

TEST(PictureList, FindsAPictureByItsNumber)
{
    const std::tuple<const char*, bool, const char*> cases[] = {{"9", true, ""},
                                                                {" 5 ", true, ""},
                                                                {"7", false, "No such picture"},
                                                                {"99999999999999", false, "No such picture"},
                                                                {"5a", false, "Illegal picture ID"},
                                                                {"5.5", false, "Illegal picture ID"},
                                                                {"", false, ""}};
    for (const auto& [typed, found, complaint] : cases) {
        TestWorld world;
        PictureList list("Beach's", {2, 5, 9});
        world.talk.expectInput(idBox, typed);
        if (*complaint != '\0') {
            world.talk.expect(complaint, complaint[0] == 'I' ? Button::Cancel : Button::Ok);
        }
        EXPECT_EQ(list.find(world.talk), found) << typed;
        EXPECT_EQ(list.current(), found ? QString(typed).toInt() : 2);
    }
    TestWorld world;
    PictureList list("Initial", {2, 5});
    world.talk.expectInput(idBox, "five").expect("Illegal picture ID", Button::Retry);
    world.talk.expectInput(idBox, "7").expect("No such picture");
    EXPECT_FALSE(list.find(world.talk));
    EXPECT_TRUE(world.talk.shown().back().text.contains("query 'Initial') does not contain picture ID 7."));
    world.talk.expectInput(idBox, std::nullopt);
    EXPECT_FALSE(list.find(world.talk));
}

TEST(PictureList, DeletesTheCurrentRecordWithItsMarksAfterAsking)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    connection.execute("INSERT INTO AlbumTOC (Title) VALUES ('one'), ('two'), ('three');"
                       "INSERT INTO Pic2Person (PicId, Name) VALUES (1, 'a'), (2, 'b'), (2, 'c'), (3, 'd')");
    PictureList list("Initial", {1, 2, 3});
    ASSERT_TRUE(list.goTo(2));
    const QString question = "Confirm Record Delete";
    world.talk.expect(question, Button::No);
    EXPECT_FALSE(list.removeCurrent(connection, world.talk));
    EXPECT_EQ(connection.countRows("AlbumTOC"), 3);
    const std::vector<std::pair<std::optional<int>, int>> steps = {{3, 2}, {1, 1}, {std::nullopt, 0}};
    for (const auto& [current, marks] : steps) {
        world.talk.expect(question, Button::Yes);
        EXPECT_TRUE(list.removeCurrent(connection, world.talk));
        EXPECT_EQ(list.current(), current);
        EXPECT_EQ(connection.countRows("Pic2Person"), marks);
    }
    EXPECT_FALSE(list.removeCurrent(connection, world.talk));
    connection.execute("INSERT INTO AlbumTOC (Title) VALUES ('four')");
    EXPECT_EQ(connection.lastInsertId(), 4) << "numbers are not given again";
}

TEST(PictureList, IsReadWithoutThePictures)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    Statement plan = connection.prepare(
        "EXPLAIN QUERY PLAN SELECT PicId, Title, Place, PictureDate, EncodPicDate, NamesLeft, Rectangle, "
        "PicFilename, ModificationDate FROM AlbumTOC ORDER BY +PicId");
    ASSERT_TRUE(plan.step());
    EXPECT_TRUE(plan.text(3).contains("COVERING INDEX")) << plan.text(3);
    connection.execute("INSERT INTO AlbumTOC (Title, EncodPicDate, Rectangle) VALUES "
                       "('late', '195000001', -1), ('early', '190000001', 0)");
    const std::vector<PictureRecord> records = ListPictures(connection);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].title, "late");
    EXPECT_EQ(records[0].pointer, PointerTool::Rectangle);
    EXPECT_TRUE(records[1].place.isNull());
}

} // namespace stemwright::test
