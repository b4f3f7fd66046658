// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/albumworld.h"
#include "base/error.h"
#include "base/files.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString tooLarge = QStringLiteral("Picture Too Large");

} // namespace

TEST(PictureEditing, StoresANewRecordWithItsPicture)
{
    AlbumWorld world;
    PictureEditing& editing = world.editing;
    editing.AddPicRec(3);
    EXPECT_TRUE(editing.isAdding() && editing.isEditing() && !editing.pictureChanged());
    const QByteArray jpeg = JpegOf(CornersPicture({160, 120}));
    ASSERT_TRUE(editing.choosePicture(world.write(QStringLiteral("At the sea.1.JPG"), jpeg)));
    EXPECT_TRUE(editing.pictureChanged());
    editing.setTitle(QStringLiteral("L'été"));
    editing.setPlace(QStringLiteral("007"));
    editing.setNames(NamePlacement::Left);
    editing.setDate(*PickTypedDate(QStringLiteral("abt 12 mar 1950"), world.talk));
    EXPECT_EQ(world.connection.countRows(QStringLiteral("AlbumTOC")), 0);
    EXPECT_EQ(editing.apply(), 1);
    EXPECT_FALSE(editing.isAdding() || editing.isEditing() || editing.pictureChanged());
    EXPECT_EQ(world.stored("Title || '|' || Place || '|' || PictureDate || '|' || EncodPicDate || '|' || NamesLeft || "
                           "'|' || Rectangle || '|' || ModificationDate || '|' || quote(PicDescr)"),
              QStringLiteral("L'été|007|Abt. 12 Mar 1950|195003122|-1|0|2026-03-12T12:00:00|NULL"));
    EXPECT_EQ(world.stored("PicType || '|' || PicFilename || '|' || PicWidth || '|' || PicHeight || '|' || "
                           "length(Thumb)"),
              QStringLiteral("JPG|At the sea.1|160|120|14454"));
    EXPECT_EQ(world.stored("hex(Picture)").toLatin1(), jpeg.toHex().toUpper());
}

TEST(PictureEditing, AsksByTheSizeOfTheFile)
{
    struct Case {
        qsizetype bytes;
        std::optional<Button> answer;
        bool taken;
        bool thumbnail;
    };

    const std::vector<Case> cases = {
        {120 * 1024 + 512, std::nullopt, true, true}, {120 * 1024 + 513, Button::Ok, true, false},
        {121 * 1024, Button::Cancel, false, false},   {200 * 1024, Button::Ok, true, false},
        {200 * 1024 + 512, Button::Ok, true, false},  {200 * 1024 + 513, Button::Ok, false, false},
    };
    for (const Case& tested : cases) {
        AlbumWorld world;
        if (tested.answer) {
            world.talk.expect(tooLarge, *tested.answer);
        }
        world.editing.AddPicRec();
        const QString path = world.write(QStringLiteral("p.jpg"), JpegOfBytes(tested.bytes));
        EXPECT_EQ(world.editing.choosePicture(path), tested.taken) << tested.bytes;
        EXPECT_EQ(world.editing.pictureChanged(), tested.taken) << tested.bytes;
        EXPECT_EQ(!world.editing.chosenThumbnail().isNull(), tested.thumbnail) << tested.bytes;
    }
}

TEST(PictureEditing, ShowsTheSizeMessagesWordForWord)
{
    AlbumWorld world;
    world.editing.AddPicRec();
    world.talk.expect(tooLarge, Button::Ok).expect(tooLarge, Button::Cancel);
    world.editing.choosePicture(world.write(QStringLiteral("p.jpg"), JpegOfBytes(300 * 1024)));
    world.editing.choosePicture(world.write(QStringLiteral("q.jpg"), JpegOfBytes(150 * 1024)));
    EXPECT_EQ(world.talk.shown()[0].text,
              QStringLiteral("Your picture file size is 300 kilobytes (KB).  It exceeds the allowed maximum of 200 KB. "
                             "Please downsize your picture and retry."));
    EXPECT_EQ(world.talk.shown()[1].text,
              QStringLiteral(
                  "Your picture size is 150 kilobytes (KB). We don't recommend using files larger than 120 KB. In "
                  "particular, Stemwright won't be able to create a thumbnail for this picture. \n\nWe strongly "
                  "suggest you to downsize your picture.\n\nIf nevertheless you want to go on with this file, click "
                  "OK. Otherwise, click Cancel."));
}

TEST(PictureEditing, RefusesUnfitFilesAndChangesNothing)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    const QByteArray jpeg = JpegOf(CornersPicture({160, 120}));
    const QStringList paths = {
        world.write(QStringLiteral("wrong.gif"), jpeg),
        world.write(QStringLiteral("cut.jpg"), jpeg.left(jpeg.size() / 2)),
        world.write(QStringLiteral("zero.jpg"), {}),
        world.write(QStringLiteral("noextension"), jpeg),
        world.write(QStringLiteral("wide.jpg"), ClaimSize(jpeg, 60'000, 40)),
        world.path(QStringLiteral("missing.jpg")),
        world.path(QString()),
    };
    for (const QString& path : paths) {
        world.talk.expect(QStringLiteral("Open Picture"));
        EXPECT_FALSE(world.editing.choosePicture(path)) << path.toStdString();
        EXPECT_FALSE(world.editing.pictureChanged()) << path.toStdString();
        EXPECT_EQ(world.editing.record().size, QSize(400, 300)) << path.toStdString();
    }
}

TEST(PictureEditing, ReplacesAndRemovesThePicture)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Rectangle);
    ASSERT_TRUE(world.editing.addName(QStringLiteral("Tom"), world.editing.typedPlace(QStringLiteral("200,9,99,9"))));
    world.editing.apply();
    const QString size = QStringLiteral("400 300");
    world.editing.EditPicRec(id);
    ASSERT_TRUE(world.editing.choosePicture(world.write(QStringLiteral("small.gif"), AnimatedGif())));
    EXPECT_THROW(world.editing.apply(), Error) << "Tom's rectangle would lie outside";
    EXPECT_EQ(world.stored("PicWidth || ' ' || PicHeight"), size);
    world.editing.pendingMarks().remove(0);
    world.editing.apply();
    EXPECT_EQ(world.stored("PicWidth || PicType || PicFilename"), QStringLiteral("160gifsmall"));
    EXPECT_TRUE(world.storedMarks().isEmpty());
    world.editing.EditPicRec(id);
    world.editing.removePicture();
    world.editing.apply();
    EXPECT_EQ(world.stored("coalesce(Picture, PicType, PicFilename, PicWidth, PicHeight, Thumb, 'none')"),
              QStringLiteral("none"));
}

TEST(PictureEditing, CancelLeavesEverythingAsItWas)
{
    AlbumWorld world;
    world.editing.AddPicRec();
    world.editing.setTitle(QStringLiteral("never"));
    EXPECT_EQ(world.editing.cancel(), std::nullopt);
    EXPECT_EQ(world.connection.countRows(QStringLiteral("AlbumTOC")), 0);
    const int id = world.openPicture(PointerTool::Rectangle);
    world.editing.setTitle(QStringLiteral("never"));
    world.editing.addName(QStringLiteral("Tom"), std::nullopt);
    EXPECT_EQ(world.editing.cancel(), id);
    EXPECT_TRUE(world.editing.record().title.isNull() && world.editing.marks().all().empty());
    EXPECT_TRUE(world.storedMarks().isEmpty());
}

TEST(PictureEditing, AppliesRecordAndMarksTogetherOrNotAtAll)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    world.editing.setTitle(QString(255, u'é'));
    world.editing.apply();
    world.editing.EditPicRec(1);
    world.editing.setTitle(QString(256, u'é'));
    EXPECT_THROW(world.editing.apply(), Error);
    world.editing.setTitle(QStringLiteral("new"));
    world.editing.addName(QStringLiteral("Tom"), std::nullopt);
    world.connection.execute(QStringLiteral("ALTER TABLE Pic2Person RENAME TO Elsewhere"));
    EXPECT_THROW(world.editing.apply(), std::exception);
    EXPECT_EQ(world.stored("Title"), QString(255, u'é'));
    EXPECT_TRUE(world.editing.isEditing());
    world.connection.execute(QStringLiteral("ALTER TABLE Elsewhere RENAME TO Pic2Person"));
    world.editing.apply();
    EXPECT_EQ(world.stored("Title"), QStringLiteral("new"));
    EXPECT_EQ(world.storedMarks().size(), 1);
}

TEST(PictureEditing, SortsUndatedPicturesLast)
{
    AlbumWorld world;
    world.editing.AddPicRec();
    world.editing.apply();
    EXPECT_EQ(world.stored("EncodPicDate"), QStringLiteral("999999999"));
    world.connection.execute(QStringLiteral("UPDATE AlbumTOC SET EncodPicDate = NULL, NamesLeft = NULL"));
    world.editing.EditPicRec(1);
    world.editing.apply();
    EXPECT_EQ(world.stored("EncodPicDate || NamesLeft"), QStringLiteral("9999999990"));
    EXPECT_THROW(world.editing.EditPicRec(2), Error);
}

} // namespace stemwright::test
