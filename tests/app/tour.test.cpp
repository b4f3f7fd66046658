// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "base/files.h"

using namespace stemwright;
using namespace stemwright::test;

namespace
{

class TourTest : public AppTest
{
protected:
    /// Adds a picture of 400 x 300 pixels with persons of the index, each marked at a place of their own.
    void addPicture(const QString& title, const QStringList& persons)
    {
        Press(window(), "mnuAddPicRec");
        Press(window(), "optRectangle");
        hand.choose("Open Picture", picture(title + ".jpg", size));
        Press(window(), "cmdSelectPic");
        Type(window(), "txtTitle", title);
        Type(window(), "dcbPlace", "Haven");
        auto& view = Find<QWidget>(window(), "imgPhoto");
        const QPointF middle = QRectF({}, size).center();
        for (int number = 0; number < persons.size(); ++number) {
            hand.at("frmPeople", [&](QWidget& dialog) {
                Type(dialog, "txtName", persons[number]);
                Press(dialog, "cmdOK");
            });
            Press(window(), "cmdShowIndex");
            Press(window(), "cmdShowPointer");
            Drag(view, size, middle, middle + QPointF(number == 0 ? -500 : 500, number == 0 ? -500 : 500));
            Press(window(), "cmdOKName");
        }
        Press(window(), "cmdApply");
    }

    const QSize size{400, 300};
};

TEST_F(TourTest, FromAnEmptyFileToAnExportedListAndBack)
{
    const QString file = world.path("Tour.kvf");
    const QString list = world.path("list.txt");
    const QString tree = world.write("tree.ged", ReadWholeFile(TestData("app/tour.ged")));
    hand.press("frmWelcome", "cmdCreate");
    hand.choose("Create New Family File", file);
    hand.answer("Family File Creation Confirmation");
    start();
    EXPECT_EQ(window().windowTitle(), "Stemwright - " + file);

    hand.choose("Select GEDCOM file", tree);
    hand.press("frmImportReport", "cmdOK");
    Press(window(), "mnuImportGedcom");

    addPicture("Wedding", {"Brook, O", "Dale, M"});
    addPicture("Picnic", {"Brook, T"});
    addPicture("Stranger", {"Moss"});
    EXPECT_EQ(Shown(window(), "dtgTOC").size(), 3);

    hand.at("frmQueries", [&](QWidget& queries) {
        hand.at("frmNewQuery", [](QWidget& dialog) {
            Type(dialog, "txtQueryName", "Otto's line");
            Press(dialog, "cmdOK");
        });
        Press(queries, "cmdNew");
        hand.at("frmEditQuery", [&](QWidget& editor) {
            hand.at("frmPeople", [](QWidget& dialog) {
                Type(dialog, "txtName", "Brook, Otto");
                Press(dialog, "cmdOK");
            });
            Press(editor, "cmdIndex");
            Press(editor, "chkIndiFilter");
            Press(editor, "chkWithDescs");
            Press(editor, "cmdRun");
        });
        Press(queries, "cmdEdit");
    });
    Press(window(), "mnuQueries");
    const QStringList found = {"1||Haven|Wedding|Wedding", "2||Haven|Picnic|Picnic"};
    EXPECT_EQ(Shown(window(), "dtgTOC"), found);

    hand.at("frmExportTableAsText", [&](QWidget& dialog) {
        Type(dialog, "txtOutputFilename", list);
        Press(dialog, "cmdOK");
    });
    Press(window(), "mnuExportTabletoText");
    EXPECT_EQ(ReadWholeFile(list), "PicId\tPictureDate\tPlace\tTitle\tPicFilename\r\n1\t\tHaven\tWedding\tWedding\r\n"
                                   "2\t\tHaven\tPicnic\tPicnic\r\n");

    start();
    EXPECT_EQ(window().windowTitle(), "Stemwright - " + file);
    EXPECT_EQ(Shown(window(), "dtgTOC"), found);
    EXPECT_EQ(Shown(window(), "hfgPersons"), QStringList({"Brook,  Otto  ", "Dale,  Mina  "}));
    key(Qt::Key_PageDown);
    EXPECT_EQ(position(), "Picture 2 of 2");
    EXPECT_EQ(Shown(window(), "hfgPersons"), QStringList({"Brook,  Tilda  "}));
    const QStringList marks = {"1 1 0,0 48x64", "1 2 352,236 48x64", "2 3 0,0 48x64", "3 4 0,0 48x64"};
    EXPECT_EQ(stored("SELECT PicId || ' ' || PersId || ' ' || X || ',' || Y || ' ' || Width || 'x' || Height "
                     "FROM Pic2Person ORDER BY 1"),
              marks);
}

} // namespace
