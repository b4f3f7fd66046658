// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "app/common/controls.h"
#include "base/files.h"

#include <QtGui/QScreen>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

class WindowsTest : public AppTest
{
protected:
    QString text(QWidget& parent, const char* name) { return Find<QLineEdit>(parent, name).text(); }

    void pressOn(const char* action, const QString& dialog, Hand::Action act)
    {
        hand.at(dialog, std::move(act));
        Press(window(), action);
    }
};

TEST_F(WindowsTest, TheDatePickerTellsWhatIsWrongAndStaysOpen)
{
    struct Case {
        const char* precision;
        const char* day;
        const char* month;
        const char* year;
        const char* message;
    };

    const Case cases[] = {{"", "29", "Feb", "1900", "Date \"29 Feb 1900\" is invalid. \n\nPlease press OK"},
                          {"", "31", "June", "1900", "Date \"31 June 1900\" is invalid. \n\nPlease press OK"},
                          {"Abt.", "3", "", "1900", "Date \"Abt. 3  1900\" is invalid. \nYou can't supply the day"},
                          {"", "", "Mar", "", "Date \"  Mar \" is invalid.  \nYou can't supply the month without"},
                          {"Bef.", "", "", "0", "Date \"Bef.   0\" is invalid.  \nYou must provide at least"},
                          {"", "", "", "12345", "Year \"12345\" is invalid. The year must be between "}};
    start(familyFile(1));
    Press(window(), "mnuEditPicRec");
    pressOn("cmdSelectDate", "frmDate", [&](QWidget& picker) {
        EXPECT_EQ(Find<QSpinBox>(picker, "spnYear").value(), 1999);
        for (const Case& each : cases) {
            Choose(picker, "cboPrecision", each.precision);
            Choose(picker, "cboDay", each.day);
            Choose(picker, "cboMonth", each.month);
            Type(picker, "spnYear", each.year);
            hand.answer(each.message);
            Press(picker, "cmdOK");
        }
        Press(picker, "cmdNoDate");
        EXPECT_EQ(Find<QComboBox>(picker, "cboPrecision").currentIndex(), 0);
        Choose(picker, "cboPrecision", "Aft.");
        Type(picker, "spnYear", "1950");
        Press(picker, "cmdOK");
    });
    EXPECT_EQ(text(window(), "txtDateString"), "Aft. 1950");
    pressOn("cmdSelectDate", "frmDate", [](QWidget& picker) { static_cast<QDialog&>(picker).reject(); });
    Press(window(), "cmdApply");
    EXPECT_EQ(stored("SELECT PictureDate || EncodPicDate FROM AlbumTOC"), QStringList("Aft. 1950195099999"));
}

TEST_F(WindowsTest, QueriesAreMadeRenamedDeletedAndRun)
{
    start(familyFile(3));
    pressOn("mnuQueries", "frmQueries", [&](QWidget& list) {
        hand.at("frmNewQuery", [&](QWidget& dialog) {
            for (const auto& [name, message] : {std::pair("", "No Query Name"), {"initial", "Duplicate query name"}}) {
                Type(dialog, "txtQueryName", name);
                hand.answer(message);
                Press(dialog, "cmdOK");
            }
            Type(dialog, "txtQueryName", "Copy");
            Press(dialog, "chkClone");
            Press(dialog, "cmdOK");
        });
        Press(list, "cmdNew");
        hand.enter("Renaming Query", "Initial");
        hand.answer("Duplicate query name");
        Press(list, "cmdRename");
        hand.enter("Renaming Query", "Late");
        Press(list, "cmdRename");
        EXPECT_EQ(Shown(list, "lstQueries"), QStringList({"Initial", "Late"}));
        EXPECT_EQ(CurrentRow(list, "lstQueries"), 1);
        hand.at("frmEditQuery", [&](QWidget& editor) {
            Press(editor, "chkPlaceShow");
            Press(editor, "chkIdFilter");
            Type(editor, "txtIdFrom", "many");
            Type(editor, "txtIdFrom", "2");
            hand.answer("You are about to lose all changes", QMessageBox::No);
            Press(editor, "cmdClose");
            Press(editor, "cmdSave");
            Press(editor, "chkTitleShow");
            hand.answer("You are about to lose all changes", QMessageBox::Yes);
            Press(editor, "cmdClose");
        });
        hand.answer("Picture List Query");
        Press(list, "cmdEdit");
        Press(list, "cmdRun");
    });
    const QStringList late = {"2|1998|Picture 2|", "3|1997|Picture 3|"};
    EXPECT_EQ(Shown(window(), "dtgTOC"), late);
    EXPECT_EQ(world.settings.value(setting::picListQueries, setting::defaultPicListQuery), "Late");
    Choose(window(), "cboQuery", "Initial");
    EXPECT_EQ(position(), "Picture 2 of 3");
    Find<QComboBox>(window(), "cboQuery").setCurrentText("Late");
    key(Qt::Key_F5);
    EXPECT_EQ(Shown(window(), "dtgTOC"), late);
    pressOn("mnuQueries", "frmQueries", [&](QWidget& list) {
        hand.answer("Confirm Query Delete", QMessageBox::No);
        Press(list, "cmdDelete");
        hand.answer("Confirm Query Delete", QMessageBox::Yes);
        Press(list, "cmdDelete");
        EXPECT_EQ(Shown(list, "lstQueries"), QStringList("Initial"));
        hand.answer("Cannot find picture list query 'Late'. Using query 'Initial'.");
        Press(list, "cmdClose");
    });
    EXPECT_EQ(position(), "Picture 2 of 3");
}

TEST_F(WindowsTest, WindowsFitTheScreenWithLargeLettersToo)
{
    QWidget high;
    ResizeForLetters(high, 9000, 9000);
    PlaceOnScreen(high);
    EXPECT_EQ(high.pos(), high.screen()->availableGeometry().topLeft()) << "the title bar goes above it";
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.5);
    start(familyFile());
    QApplication::setFont(large);
    pressOn("mnuQueries", "frmQueries", [&](QWidget& list) {
        hand.at("frmEditQuery", [](QWidget& editor) {
            EXPECT_EQ(editor.size().boundedTo(editor.screen()->availableSize()), editor.size());
            Press(editor, "cmdClose");
        });
        Press(list, "cmdEdit");
        Press(list, "cmdClose");
    });
    QApplication::setFont(usual);
}

TEST_F(WindowsTest, ThePeoplePickerFindsAndSorts)
{
    start(familyFile());
    Press(window(), "mnuAddPicRec");
    pressOn("cmdShowIndex", "frmPeople", [&](QWidget& picker) {
        const auto row = [&picker] { return CurrentRow(picker, "dtgPeople"); };
        EXPECT_EQ(Shown(picker, "dtgPeople"),
                  QStringList({"2|Bough,  Eve ||", "3|Root,  Abel ||", "1|Root,  Adam ||", "4|Root,  Ida ||"}));
        Type(picker, "txtName", "Root, Ad");
        EXPECT_EQ(row(), 2);
        Type(picker, "txtName", "Root, Ax");
        EXPECT_EQ(row(), 1);
        auto& nobody = Find<QWidget>(picker, "lblNobody");
        auto& ok = Find<QWidget>(picker, "cmdOK");
        EXPECT_TRUE(nobody.isVisible() && !ok.isEnabled()) << "Abel is not who was typed";
        auto& grid = Find<QAbstractItemView>(picker, "dtgPeople");
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.currentIndex()).center());
        EXPECT_TRUE(!nobody.isVisible() && ok.isEnabled());
        EXPECT_EQ(text(picker, "txtName"), "Root,  Abel ");
        EXPECT_FALSE(Find<QWidget>(picker, "cmdNext").isEnabled());
        hand.enter("Find Name", "A");
        Press(picker, "cmdFind");
        EXPECT_EQ(text(picker, "txtName"), "Root,  Abel ");
        Press(picker, "cmdNext");
        Press(picker, "cmdNext");
        EXPECT_EQ(row(), 3);
        hand.answer("No Next Match");
        Press(picker, "cmdNext");
        Press(picker, "cmdPrevious");
        EXPECT_EQ(row(), 2);
        EXPECT_TRUE(Find<QWidget>(picker, "cmdNext").isEnabled());
        for (const auto& [first, adam] : {std::pair("1|", 0), {"4|", 3}}) {
            ClickHeader(picker, "dtgPeople", 0);
            EXPECT_TRUE(Shown(picker, "dtgPeople").first().startsWith(first));
            EXPECT_EQ(row(), adam);
        }
        QTest::keyClick(&picker, Qt::Key_Escape);
    });
    EXPECT_EQ(text(window(), "txtName"), "");
    EXPECT_FALSE(Find<QWidget>(window(), "cmdOKName").isEnabled());
}

TEST_F(WindowsTest, ContactsAreEnteredFromTheListOfNames)
{
    start(familyFile());
    pressOn("mnuContEdit", "frmIndex4Addr", [&](QWidget& names) {
        Type(names, "txtName", "Root, I");
        for (const char* email : {"ida@example.org", "lost@example.org"}) {
            hand.at("frmContactInfo", [email](QWidget& contact) {
                EXPECT_EQ(Find<QLabel>(contact, "lblName").text(), "Root,  Ida ");
                EXPECT_TRUE(Find<QPlainTextEdit>(contact, "txtAddress").isReadOnly());
                Type(contact, "txtEmail1", email);
                Press(contact, QString(email).startsWith("ida") ? "cmdOK" : "cmdCancel");
            });
            Press(names, "cmdContactInfo");
        }
        Press(names, "cmdClose");
    });
    EXPECT_EQ(stored("SELECT Id || Email1 FROM WebAddr"), QStringList("4ida@example.org"));
}

TEST_F(WindowsTest, TheExportAsksAboutFoldersAndFiles)
{
    const QString list = world.path("out/list.txt");
    start(familyFile(1));
    pressOn("mnuExportTabletoText", "frmExportTableAsText", [&](QWidget& dialog) {
        hand.choose("Select GEDCOM file", list);
        Press(dialog, "cmdBrowse");
        Type(dialog, "txtOutputFilename", list);
        Choose(dialog, "cboDelimiter", ";");
        hand.answer("No such folder", QMessageBox::Cancel);
        Press(dialog, "cmdOK");
        hand.answer("No such folder");
        Press(dialog, "cmdOK");
    });
    EXPECT_EQ(ReadWholeFile(list), "PicId;PictureDate;Place;Title;PicFilename\r\n1; 1999;Haven;Picture 1;\r\n");
    pressOn("mnuExportTabletoText", "frmExportTableAsText", [&](QWidget& dialog) {
        Type(dialog, "txtOutputFilename", list);
        hand.answer("File exists", QMessageBox::Cancel);
        Press(dialog, "cmdOK");
        Choose(dialog, "cboDelimiter", ":");
        hand.answer("File exists");
        Press(dialog, "cmdOK");
    });
    EXPECT_TRUE(ReadWholeFile(list).startsWith("PicId:"));
}

TEST_F(WindowsTest, PropertiesAndAboutTellWhatThereIs)
{
    const QString file = familyFile(2);
    start(file);
    pressOn("mnuProperties", "frmProperties", [&](QWidget& properties) {
        const std::pair<const char*, QString> texts[] = {
            {"lblPath", file}, {"lblIndividuals", "4"}, {"lblFamilies", "2"}, {"lblPictures", "2"}, {"lblMarks", "0"}};
        for (const auto& [name, text] : texts) {
            EXPECT_EQ(Find<QLabel>(properties, name).text(), text);
        }
        Press(properties, "cmdOK");
    });
    pressOn("mnuAbout", "frmAbout", [](QWidget& about) {
        EXPECT_EQ(Find<QLabel>(about, "lblVersion").text(), "Version 3.0.2");
        Press(about, "cmdOK");
    });
}

} // namespace
