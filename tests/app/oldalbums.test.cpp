// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"

#include <QtGui/QAction>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

class OldAlbumsTest : public AppTest
{
protected:
    QString text(QWidget& parent, const char* name) { return Find<QLabel>(parent, name).text(); }

    bool isEnabled(QWidget& parent, const char* name) { return Find<QWidget>(parent, name).isEnabled(); }
};

TEST_F(OldAlbumsTest, AnAlbumIsImportedAndItsNamesAreMatched)
{
    start(familyFile());
    const auto& matchNames = Find<QAction>(window(), "mnuMatchNames");
    EXPECT_FALSE(matchNames.isEnabled());
    picture("obraz ó.jpg", {60, 50});
    const auto matchNamesOf = [&](QWidget& names) {
        EXPECT_EQ(Shown(names, "hfgIndisInOldAlbum"),
                  QStringList({"Tom O'Neil|4|No", "Murka|4|No", "Whiskerby, Tom|1|No", "Žofia|1|No", "Мурка|1|No",
                               "Neznámý kocour|1|No"}));
        hand.at("frmMatchingNames", [&](QWidget& matching) {
            EXPECT_TRUE(text(matching, "lblPrompt").startsWith("No matches for Tom O'Neil\n\nClick Next"));
            EXPECT_FALSE(isEnabled(matching, "cmdAccept"));
            hand.press("frmPeople", "cmdCancel");
            Press(matching, "cmdIndex");
            hand.at("frmPeople", [](QWidget& picker) {
                Type(picker, "txtName", "Root, Ida");
                Press(picker, "cmdOK");
            });
            Press(matching, "cmdIndex");
            EXPECT_EQ(text(matching, "lblPlace"), "Name 2 of 6, on 4 pictures");
            hand.answer("Are you sure you want to stop", QMessageBox::No);
            Press(matching, "cmdCancel");
            EXPECT_EQ(text(matching, "lblOldName"), "Whiskerby, Tom");
            Press(matching, "cmdNext");
            hand.answer("Are you sure you want to stop", QMessageBox::Yes);
            Press(matching, "cmdCancel");
        });
        Press(names, "cmdMatch");
        EXPECT_EQ(CurrentRow(names, "hfgIndisInOldAlbum"), 1);
        Press(names, "cmdClose");
    };
    hand.at("frmImpPreV2Album", [&](QWidget& import) {
        EXPECT_FALSE(isEnabled(import, "cmdOK"));
        for (const char* album : {"album-empty.mdb", "album-8.mdb"}) {
            hand.choose("Select Pre-V2 Photo Album", TestData("jet/albums/" + QString(album)));
            Press(import, "cmdBrowseInput");
            if (QString(album) == "album-empty.mdb") {
                hand.answer("The selected pre-V2 photo album contains no pictures");
                Press(import, "cmdOK");
            }
        }
        hand.answer("The picture\nC:\\Album\\tom1.jpg\nis already", QMessageBox::No);
        hand.answer("Pre-V2 Photo Album");
        hand.at("frmIndisInOldAlbum", matchNamesOf);
        Press(import, "cmdOK");
    });
    Press(window(), "mnuPreV2");
    EXPECT_EQ(position(), "Picture 1 of 7");
    EXPECT_TRUE(matchNames.isEnabled());
    EXPECT_EQ(stored("SELECT PicId || ' ' || PersId || ' ' || X || ',' || Y || ' ' || Name FROM Pic2Person"),
              QStringList({"1 4 10,20 Root,  Ida ", "2 4 11,21 Root,  Ida ", "3 4 7,8 Root,  Ida ",
                           "7 4 12,22 Root,  Ida ", "3 0 1,2 Whiskerby, Tom"}));
    EXPECT_EQ(stored("SELECT PicWidth FROM AlbumTOC WHERE Thumb IS NOT NULL"), QStringList("60"));
}

TEST_F(OldAlbumsTest, MatchingIsTakenUpAgain)
{
    const QString file = familyFile(2);
    {
        Connection connection(file, OpenMode::ReadWrite);
        connection.execute("CREATE TABLE PreV2Indi (Id INTEGER PRIMARY KEY, Name TEXT);"
                           "CREATE TABLE PreV2Pic2Person (PicId INTEGER, PersId INTEGER, X TEXT, Y TEXT);"
                           "INSERT INTO PreV2Indi (Name) VALUES ('Done'), ('root, a'), ('Bough, Eve');"
                           "INSERT INTO PreV2Pic2Person VALUES (1, 1, '5', '6'), (2, 2, '7', '8'), (1, 3, '9', '9');"
                           "INSERT INTO Pic2Person (PicId, PersId, X, Y, Name) VALUES (1, 0, '5', '6', 'Done')");
    }
    start(file);
    hand.at("frmIndisInOldAlbum", [&](QWidget& names) {
        EXPECT_EQ(CurrentRow(names, "hfgIndisInOldAlbum"), 1);
        hand.at("frmMatchingNames", [&](QWidget& matching) {
            EXPECT_EQ(Shown(matching, "dtgMatchingNames"), QStringList({"Root, Abel ||", "Root, Adam ||"}));
            EXPECT_TRUE(text(matching, "lblPrompt").startsWith("If any of the names"));
            QTest::keyClick(&Find<QTableView>(matching, "dtgMatchingNames"), Qt::Key_Down);
            QTest::keyClick(&Find<QTableView>(matching, "dtgMatchingNames"), Qt::Key_Return);
            hand.answer("Name matching is completed.");
            Press(matching, "cmdAccept");
        });
        Press(names, "cmdMatch");
        EXPECT_EQ(Shown(names, "hfgIndisInOldAlbum"), QStringList({"Done|1|Yes", "root, a|1|Yes", "Bough, Eve|1|Yes"}));
        Press(names, "cmdClose");
    });
    Press(window(), "mnuMatchNames");
    EXPECT_EQ(Shown(window(), "hfgPersons"), QStringList({"Bough, Eve ", "Done"}));
    EXPECT_EQ(stored("SELECT PicId || PersId || X || Y FROM Pic2Person"), QStringList({"1056", "2178", "1299"}));
}

} // namespace
