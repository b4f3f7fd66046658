// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/albumworld.h"
#include "base/error.h"
#include "base/files.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(PictureEditing, StoresANewRecordWithItsPicture)
{
    AlbumWorld world;
    PictureEditing& editing = world.editing;
    editing.AddPicRec(3);
    const QByteArray jpeg = JpegOf(CornersPicture({160, 120}));
    ASSERT_TRUE(editing.choosePicture(world.write("At the sea.1.JPG", jpeg)));
    EXPECT_FALSE(editing.chosenPath().isEmpty());
    editing.setTitle("L'été");
    editing.setPlace("007");
    editing.setNames(NamePlacement::Left);
    editing.setDate(*PickTypedDate("abt 12 mar 1950", world.talk));
    EXPECT_EQ(world.connection().countRows("AlbumTOC"), 0);
    EXPECT_EQ(editing.apply(), 1);
    EXPECT_TRUE(editing.chosenPath().isEmpty());
    EXPECT_EQ(world.stored("Title, Place, PictureDate, EncodPicDate, NamesLeft, Rectangle, ModificationDate, PicDescr"),
              "L'été|007|Abt. 12 Mar 1950|195003122|-1|0|2026-03-12T12:00:00|-");
    EXPECT_EQ(world.stored("PicType, PicFilename, PicWidth, PicHeight, length(Thumb)"),
              "JPG|At the sea.1|160|120|14454");
    EXPECT_EQ(world.stored("hex(Picture)").toLatin1(), jpeg.toHex().toUpper());
}

TEST(PictureEditing, AsksByTheSizeOfTheFile)
{
    const std::tuple<qsizetype, std::optional<Button>, bool, bool, const char*> cases[] = {
        {120 * 1024 + 512, std::nullopt, true, true, ""},
        {120 * 1024 + 513, Button::Ok, true, false, "Your picture size is 121 kilobytes (KB). We don't recommend"},
        {121 * 1024, Button::Cancel, false, false, "is 121 kilobytes"},
        {200 * 1024 + 512, Button::Ok, true, false, "is 200 kilobytes"},
        {200 * 1024 + 513, Button::Ok, false, false,
         "is 201 kilobytes (KB).  It exceeds the allowed maximum of 200 KB."},
    };
    for (const auto& [bytes, answer, taken, thumbnail, size] : cases) {
        AlbumWorld world;
        if (answer) {
            world.talk.expect("Picture Too Large", *answer);
        }
        world.editing.AddPicRec();
        const QString path = world.write("p.jpg", JpegOfBytes(bytes));
        EXPECT_EQ(world.editing.choosePicture(path), taken) << bytes;
        world.editing.apply();
        EXPECT_EQ(world.stored("PicFilename IS NOT NULL, Picture IS NOT NULL, Thumb IS NOT NULL"),
                  QString("%1|%1|%2").arg(taken).arg(thumbnail))
            << bytes;
        EXPECT_TRUE(!answer || world.talk.shown()[0].text.contains(size)) << world.talk.shown()[0].text;
    }
}

TEST(PictureEditing, RefusesUnfitFilesAndChangesNothing)
{
    AlbumWorld world;
    world.openPicture(PointerTool::Arrow);
    const QByteArray jpeg = JpegOf(CornersPicture({160, 120}));
    const QStringList paths = {world.write("wrong.gif", jpeg),   world.write("cut.jpg", jpeg.left(jpeg.size() / 2)),
                               world.write("noextension", jpeg), world.write("wide.jpg", ClaimSize(jpeg, 60'000, 40)),
                               world.path("missing.jpg"),        world.path({})};
    for (const QString& path : paths) {
        world.talk.expect("Open Picture");
        EXPECT_FALSE(world.editing.choosePicture(path)) << path;
        EXPECT_TRUE(world.editing.chosenPath().isEmpty()) << path;
        EXPECT_EQ(world.editing.record().size, QSize(400, 300)) << path;
    }
}

TEST(PictureEditing, ReplacesAndRemovesThePicture)
{
    AlbumWorld world;
    const int id = world.openPicture(PointerTool::Rectangle);
    ASSERT_TRUE(world.editing.addName("Tom", world.editing.typedPlace("200,9,99,9")));
    world.editing.apply();
    world.editing.EditPicRec(id);
    ASSERT_TRUE(world.editing.choosePicture(world.write("small.gif", AnimatedGif())));
    EXPECT_THROW(world.editing.apply(), Error) << "Tom's rectangle would lie outside";
    EXPECT_EQ(world.stored("PicWidth, PicHeight"), "400|300");
    world.editing.pendingMarks().remove(0);
    world.editing.apply();
    EXPECT_EQ(world.stored("PicWidth, PicType, PicFilename"), "160|gif|small");
    EXPECT_TRUE(world.storedMarks().isEmpty());
    world.editing.EditPicRec(id);
    world.editing.removePicture();
    world.editing.apply();
    EXPECT_EQ(world.stored("coalesce(Picture, PicType, PicFilename, PicWidth, PicHeight, Thumb, 'none')"), "none");
}

TEST(PictureEditing, CancelLeavesEverythingAsItWas)
{
    AlbumWorld world;
    world.editing.AddPicRec();
    world.editing.setTitle("never");
    EXPECT_EQ(world.editing.cancel(), std::nullopt);
    EXPECT_EQ(world.connection().countRows("AlbumTOC"), 0);
    const int id = world.openPicture(PointerTool::Rectangle);
    world.editing.setTitle("never");
    world.editing.addName("Tom", std::nullopt);
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
    world.editing.setTitle("new");
    world.editing.addName("Tom", std::nullopt);
    world.execute("ALTER TABLE Pic2Person RENAME TO Elsewhere");
    EXPECT_THROW(world.editing.apply(), std::exception);
    EXPECT_EQ(world.stored("Title"), QString(255, u'é'));
    world.execute("ALTER TABLE Elsewhere RENAME TO Pic2Person");
    world.editing.apply();
    EXPECT_EQ(world.stored("Title"), "new");
    EXPECT_EQ(world.storedMarks().size(), 1);
}

TEST(PictureEditing, SortsUndatedPicturesLast)
{
    AlbumWorld world;
    world.editing.AddPicRec();
    world.editing.apply();
    EXPECT_EQ(world.stored("EncodPicDate"), "999999999");
    world.execute("UPDATE AlbumTOC SET EncodPicDate = NULL, NamesLeft = NULL");
    world.editing.EditPicRec(1);
    world.editing.apply();
    EXPECT_EQ(world.stored("EncodPicDate || NamesLeft"), "9999999990");
    EXPECT_THROW(world.editing.EditPicRec(2), Error);
}

} // namespace stemwright::test
