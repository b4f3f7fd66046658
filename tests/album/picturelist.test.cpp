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

const QString idBox = QStringLiteral("Search by picture ID");

} // namespace

TEST(PictureList, FindsAPictureByItsNumber)
{
    struct Case {
        QString typed;
        bool found;
        QString complaint;
    };

    const std::vector<Case> cases = {
        {QStringLiteral("9"), true, {}},
        {QStringLiteral(" 5 "), true, {}},
        {QStringLiteral("7"), false, QStringLiteral("No such picture")},
        {QStringLiteral("99999999999999"), false, QStringLiteral("No such picture")},
        {QStringLiteral("5a"), false, QStringLiteral("Illegal picture ID")},
        {QStringLiteral("5.5"), false, QStringLiteral("Illegal picture ID")},
        {QStringLiteral(""), false, {}},
    };
    for (const Case& tested : cases) {
        TestWorld world;
        PictureList list(QStringLiteral("Beach's"), {2, 5, 9});
        world.talk.expectInput(idBox, tested.typed);
        if (!tested.complaint.isNull()) {
            const bool illegal = tested.complaint.startsWith(u"Illegal");
            world.talk.expect(tested.complaint, illegal ? Button::Cancel : Button::Ok);
        }
        EXPECT_EQ(list.find(world.talk), tested.found) << tested.typed.toStdString();
        EXPECT_EQ(list.current(), tested.found ? tested.typed.trimmed().toInt() : 2);
    }
}

TEST(PictureList, AsksAgainOnRetry)
{
    TestWorld world;
    PictureList list(QStringLiteral("Initial"), {2, 5});
    world.talk.expectInput(idBox, QStringLiteral("five")).expect(QStringLiteral("Illegal picture ID"), Button::Retry);
    world.talk.expectInput(idBox, QStringLiteral("7")).expect(QStringLiteral("No such picture"));
    EXPECT_FALSE(list.find(world.talk));
    EXPECT_EQ(world.talk.shown().back().text,
              QStringLiteral("This picture list (selected by query 'Initial') does not contain picture ID 7."));
    world.talk.expectInput(idBox, std::nullopt);
    EXPECT_FALSE(list.find(world.talk));
}

TEST(PictureList, DeletesTheCurrentRecordWithItsMarksAfterAsking)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    connection.execute(
        QStringLiteral("INSERT INTO AlbumTOC (Title) VALUES ('one'), ('two'), ('three');"
                       "INSERT INTO Pic2Person (PicId, Name) VALUES (1, 'a'), (2, 'b'), (2, 'c'), (3, 'd')"));
    PictureList list(QStringLiteral("Initial"), {1, 2, 3});
    ASSERT_TRUE(list.goTo(2));
    const QString question = QStringLiteral("Confirm Record Delete");
    world.talk.expect(question, Button::No);
    EXPECT_FALSE(list.removeCurrent(connection, world.talk));
    EXPECT_EQ(connection.countRows(QStringLiteral("AlbumTOC")), 3);
    const std::vector<std::pair<std::optional<int>, int>> steps = {{3, 2}, {1, 1}, {std::nullopt, 0}};
    for (const auto& [current, marks] : steps) {
        world.talk.expect(question, Button::Yes);
        EXPECT_TRUE(list.removeCurrent(connection, world.talk));
        EXPECT_EQ(list.current(), current);
        EXPECT_EQ(connection.countRows(QStringLiteral("Pic2Person")), marks);
    }
    EXPECT_FALSE(list.removeCurrent(connection, world.talk));
    connection.execute(QStringLiteral("INSERT INTO AlbumTOC (Title) VALUES ('four')"));
    EXPECT_EQ(connection.lastInsertId(), 4) << "numbers are not given again";
}

TEST(PictureList, IsReadWithoutThePictures)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    Statement plan = connection.prepare(QStringLiteral(
        "EXPLAIN QUERY PLAN SELECT PicId, Title, Place, PictureDate, EncodPicDate, NamesLeft, Rectangle, "
        "PicFilename, ModificationDate FROM AlbumTOC ORDER BY +PicId"));
    ASSERT_TRUE(plan.step());
    EXPECT_TRUE(plan.text(3).contains(QStringLiteral("COVERING INDEX"))) << plan.text(3).toStdString();
    connection.execute(QStringLiteral("INSERT INTO AlbumTOC (Title, EncodPicDate, Rectangle) VALUES "
                                      "('late', '195000001', -1), ('early', '190000001', 0)"));
    const std::vector<PictureRecord> records = ListPictures(connection);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].title, QStringLiteral("late"));
    EXPECT_EQ(records[0].pointer, PointerTool::Rectangle);
    EXPECT_TRUE(records[1].place.isNull());
}

} // namespace stemwright::test
