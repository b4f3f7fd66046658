// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/importprev2album.h"

#include "album/testpictures.h"
#include "base/files.h"
#include "oldalbum/participants.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString album8 = TestData("jet/albums/album-8.mdb");

class AlbumImportTest : public testing::Test
{
protected:
    AlbumImportTest()
    {
        world.newFamilyFile();
        world.execute("INSERT INTO Indi (Id, Surname) VALUES (1, 'Whiskerby')");
    }

    /// Imports an album of which no picture file can be found, as the user is told.
    bool import(const QString& album = album8)
    {
        world.talk.expect("Pre-V2 Photo Album");
        return ImportPreV2Album(world.file, album, world.environment, report);
    }

    QStringList rows(const QString& sql) { return Rows(world.connection(), sql); }

    TestWorld world;
    AlbumImportReport report;
};

/// Rows as described beside the fixture, as Rows() gives them.
QStringList Expected(const QJsonObject& described, const char* table, const QStringList& columns)
{
    QStringList rows;
    for (const QJsonValue row : described[QLatin1String(table)].toArray()) {
        QStringList values;
        for (const QString& column : columns) {
            const QJsonValue value = row[column];
            values << (value.isUndefined() ? "-" : value.toVariant().toString());
        }
        rows << values.join(u'|');
    }
    return rows;
}

} // namespace

TEST(Participants, AreTriplesEachOfWhoseFieldsIsEnded)
{
    const auto joined = [](const QString& participants) {
        QStringList all;
        for (const Participant& one : SplitParticipants(participants)) {
            all << one.name + '@' + one.x + ',' + one.y;
        }
        return all.join(u';');
    };
    for (const QStringList& row : TestTable("oldalbum/participants.txt")) {
        EXPECT_EQ(joined(QString(row[0]).replace('/', '|')), row[1]) << row[0];
    }
}

TEST_F(AlbumImportTest, WritesWhatIsDescribed)
{
    world.talk.expect("The picture", Button::No);
    ASSERT_TRUE(import());
    const QJsonObject described = QJsonDocument::fromJson(ReadWholeFile(album8 + ".after-import.json")).object();
    EXPECT_EQ(rows("SELECT PicFilename, PictureDate, Place, Title, ModificationDate, EncodPicDate FROM AlbumTOC ORDER "
                   "BY PicId"),
              Expected(described, "AlbumTOC added",
                       {"PictureFilename", "PictureDate", "Place", "Title", "ModificationDate", "EncodPicDate"}));
    EXPECT_EQ(rows("SELECT Id, Name FROM PreV2Indi"), Expected(described, "PreV2Indi", {"Id", "Name"}));
    EXPECT_EQ(
        rows("SELECT PicId, PersId, X, Y FROM PreV2Pic2Person ORDER BY rowid"),
        Expected(described, "PreV2Pic2Person (picture = position in the list above)", {"picture", "PersId", "X", "Y"}));
    EXPECT_EQ(ReportText(report), TestDataText("oldalbum/report.txt"));
    EXPECT_TRUE(world.talk.shown().back().text.contains("\nC:\\Album\\nobody.jpg\n"));
}

TEST_F(AlbumImportTest, LoadsThePicturesThatItFinds)
{
    QDir(world.path(".")).mkpath("old/album");
    const QString album = world.path("old/a.mdb");
    QFile::copy(album8, album);
    const QByteArray picture = JpegOf(CornersPicture({160, 120}));
    world.write("old/album/TOM1.Jpg", picture);
    world.write("old/tom2.jpg", JpegOfBytes(121 * 1024));
    world.write("group.gif", picture);
    world.write("lastname.jpg", "no picture");
    world.talk.expect("The picture", Button::No);
    ASSERT_TRUE(import(album));
    EXPECT_EQ(rows("SELECT PicId, PicType, length(Picture), Thumb IS NOT NULL, PicWidth, PicHeight FROM AlbumTOC WHERE "
                   "Picture IS NOT NULL ORDER BY PicId"),
              (QStringList{QString("1|Jpg|%1|1|160|120").arg(picture.size()), "2|jpg|123904|0|160|120",
                           QString("3|jpg|%1|1|160|120").arg(picture.size())}));
    EXPECT_EQ(report.loaded, 3);
    EXPECT_EQ(report.missing.size(), 3);
    ASSERT_EQ(report.unfit.size(), 1);
    EXPECT_TRUE(report.unfit.constFirst().startsWith("C:\\Album\\lastname.jpg: "));
}

TEST_F(AlbumImportTest, AsksAboutDuplicatesUntilItIsToldNotTo)
{
    world.execute("INSERT INTO AlbumTOC (PicFilename) VALUES ('c:\\ALBUM\\tom2.jpg')");
    const QString count = "SELECT count(*) FROM AlbumTOC";
    world.talk.expect("The picture", Button::Cancel);
    EXPECT_FALSE(import());
    EXPECT_EQ(report.outcome, AlbumImportOutcome::Stopped);
    EXPECT_EQ(rows(count), QStringList{"2"});
    EXPECT_EQ(rows("SELECT Name FROM PreV2Indi"), (QStringList{"Tom O'Neil", "Murka"}));

    world.talk.expect("Names Not Matched Yet", Button::Ok)
        .expect("The picture", Button::Yes)
        .expect("The picture", Button::No);
    EXPECT_TRUE(import());
    EXPECT_EQ(report.duplicates, 3);
    EXPECT_EQ(rows(count), QStringList{"7"});

    // Names are kept when none come in their stead.
    const QString all = "SELECT Name, PicId, X FROM PreV2Indi JOIN PreV2Pic2Person ON Id = PersId";
    const QStringList names = rows(all);
    EXPECT_EQ(names.size(), 9);
    world.talk.expect("Names Not Matched Yet", Button::Ok);
    for (int i = 0; i < 8; ++i) {
        world.talk.expect("The picture", Button::Yes);
    }
    world.talk.expect("Names Not Matched Yet");
    EXPECT_TRUE(ImportPreV2Album(world.file, album8, world.environment, report));
    EXPECT_EQ(rows(count), QStringList{"7"});
    EXPECT_EQ(rows(all), names);
}

TEST_F(AlbumImportTest, LeavesTheFileAloneWhenNothingCanBeImported)
{
    QByteArray locked = ReadWholeFile(album8);
    locked[0x42] = static_cast<char>(locked[0x42] ^ 1);
    QByteArray damaged = ReadWholeFile(album8);
    damaged.truncate(damaged.size() - 3 * 4096);

    struct Case {
        QString album;
        QString told;
    };

    for (const Case& one : std::initializer_list<Case>{{TestData("jet/albums/album-empty.mdb"), "contains no pictures"},
                                                       {world.write("locked.mdb", locked), "password"},
                                                       {world.write("damaged.mdb", damaged), "damaged"},
                                                       {TestData("jet/family-3.0.2/cats-3.0.2.kvf"), "another kind"},
                                                       {world.file.path(), "not a Jet database"},
                                                       {world.path("none.mdb"), "No such file"},
                                                       {world.path("."), "cannot be imported"}}) {
        world.talk.expect("");
        EXPECT_FALSE(ImportPreV2Album(world.file, one.album, world.environment, report)) << one.album;
        EXPECT_TRUE(world.talk.shown().back().text.contains(one.told)) << world.talk.shown().back().text;
    }
    world.execute("DELETE FROM Indi");
    world.talk.expect("There are no individuals", Button::Cancel);
    EXPECT_FALSE(ImportPreV2Album(world.file, album8, world.environment, report));
    EXPECT_EQ(report.outcome, AlbumImportOutcome::Declined);
    EXPECT_EQ(rows("SELECT count(*) FROM AlbumTOC"), QStringList{"0"});
    EXPECT_FALSE(world.connection().hasTable(u"PreV2Indi"));

    world.file.close();
    world.talk.expect("No family file");
    EXPECT_FALSE(ImportPreV2Album(world.file, album8, world.environment, report));
}

} // namespace stemwright::test
