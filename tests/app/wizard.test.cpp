// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "app/people/people.h"
#include "app/wizard/frmsitewizard.h"
#include "base/files.h"
#include "web/setup/treeediting.h"

#include <QtCore/QDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

QString TextOf(QWidget& window, const char* label)
{
    return Find<QLabel>(window, label).text();
}

bool IsEnabled(QWidget& window, const char* control)
{
    return Find<QWidget>(window, control).isEnabled();
}

class WizardTest : public AppTest
{
protected:
    /// Opens a family file and lets `act` work the wizard on its setup.
    void wizard(const Hand::Action& act, WizardMode mode = WizardMode::Edit)
    {
        if (!world.file.isOpen()) {
            ASSERT_TRUE(OpenFamilyFile(world.file, familyFile(), environment));
        }
        People people(world.file, environment);
        hand.at("frmSiteWizard", act);
        ShowSiteWizard(
            world.file, environment, "Default", mode, [&people] { return people.pick(); }, nullptr);
    }

    static void next(QWidget& wizard, int times = 1)
    {
        for (int time = 0; time < times; ++time) {
            Press(wizard, "cmdNext");
        }
    }

    static QString pageOf(QWidget& wizard) { return Find<QListWidget>(wizard, "lstPages").currentItem()->text(); }

    static void goTo(QWidget& wizard, const QString& page)
    {
        auto& pages = Find<QListWidget>(wizard, "lstPages");
        pages.setCurrentItem(pages.findItems(page, Qt::MatchExactly).constFirst());
    }

    /// Chooses somebody for the head of the tree that is being edited.
    void chooseHead(QWidget& wizard, const QString& name)
    {
        hand.at("frmPeople", [&name](QWidget& people) {
            Type(people, "txtName", name);
            Press(people, "cmdOK");
        });
        Press(wizard, "cmdIndex");
    }

    /// Next is refused with this message, and the wizard stays as it is, ready for whatever is typed next.
    void refused(QWidget& wizard, const QString& message)
    {
        const QString page = pageOf(wizard);
        const QWidget* focus = wizard.focusWidget();
        hand.answer(message);
        next(wizard);
        EXPECT_EQ(pageOf(wizard), page);
        EXPECT_EQ(wizard.focusWidget(), focus);
    }

    /// The sample of a background style is shown in its colours, whose files are not beside it.
    void viewSample(QWidget& wizard)
    {
        hand.at("frmWebBrowser", [](QWidget& browser) {
            EXPECT_TRUE(Await([&browser] { return browser.grab().toImage().pixelColor(5, 5) != Qt::white; }));
            Press(browser, "cmdClose");
        });
        Press(wizard, "cmdViewSample");
    }

    static void expectTitle(QWidget& browser, const QString& title)
    {
        EXPECT_TRUE(Await([&] { return browser.windowTitle() == "Web Browser - " + title; }))
            << browser.windowTitle().toStdString();
    }

    /// Cancels with changes that are not saved.
    void lose(QWidget& wizard)
    {
        hand.answer("You are about to lose all changes", QMessageBox::Yes);
        Press(wizard, "cmdCancel");
    }
};

TEST_F(WizardTest, FromANewSetupToTheFinishedSiteOfTheSample)
{
    const QString file = world.path("cats.kvf");
    const QString site = world.path("site");
    world.application = ApplicationFolder::ofProgram();
    ASSERT_TRUE(QFile::copy(world.application.sampleFile(), file));
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
    start(file);
    hand.at("frmSetups", [&](QWidget& setups) {
        hand.at("frmNewSetup", [](QWidget& dialog) {
            Type(dialog, "txtSetupName", "All cats");
            Press(dialog, "cmdOK");
        });
        hand.at("frmSiteWizard", [&](QWidget& wizard) {
            EXPECT_EQ(wizard.windowTitle(), "Create Web Pages Wizard - All cats");
            EXPECT_FALSE(IsEnabled(wizard, "cmdBack") || IsEnabled(wizard, "cmdFinish") ||
                         IsEnabled(wizard, "cmdSave"));
            EXPECT_EQ(Find<QWidget>(wizard, "cmdFinish").toolTip(),
                      "You have not yet selected the tree head for at least one tree.");
            next(wizard);
            Press(wizard, "optSubsite");
            Type(wizard, "txtHomePageName", "");
            refused(wizard, "The homepage filename cannot be empty.");
            Type(wizard, "txtHomePageName", "../cats.html");
            next(wizard);
            Type(wizard, "txtWebPageFolder", world.path(""));
            EXPECT_TRUE(TextOf(wizard, "lblFolderWarning").contains("holds a family file"));
            hand.choose("Folder for the Web Pages", world.path(""));
            Press(wizard, "cmdBrowse");
            Type(wizard, "txtWebPageFolder", site);
            EXPECT_EQ(TextOf(wizard, "lblFolderWarning"), "");
            next(wizard);
            Type(wizard, "txtSiteTitle", "Nine Lives");
            Find<QPlainTextEdit>(wizard, "txtTitleStory").setPlainText("About <B>cats</B>.");
            next(wizard);
            Type(wizard, "spnMaxGenOnPage", "1");
            refused(wizard, "The maximum number of generations on a page cannot be less than 2");
            Type(wizard, "spnMaxGenOnPage", "3");
            Press(wizard, "chkPersPages");
            next(wizard);
            refused(wizard, "No Tree Head");
            viewSample(wizard);
            for (int tree = 0; tree < TreeDisplays().size(); ++tree) {
                if (tree > 0) {
                    Press(wizard, "cmdAdd");
                }
                chooseHead(wizard, TreeDisplays()[tree] == "Ancestor Tree" ? "Purrington, Barney" : "Whiskerton, B");
                Choose(wizard, "cboDisplay", TreeDisplays()[tree]);
                Press(wizard, "cmdApply");
            }
            next(wizard);
            EXPECT_EQ(pageOf(wizard), "Finished!");
            EXPECT_TRUE(TextOf(wizard, "lblSummary").contains(site));
            EXPECT_TRUE(TextOf(wizard, "lblLivingShown").startsWith("Living persons are shown"));
            Press(wizard, "chkSaveDefault");
            hand.answer("The output folder", QMessageBox::Cancel);
            Press(wizard, "cmdFinish");
            EXPECT_TRUE(wizard.isVisible());
            hand.answer("The output folder");
            hand.at("frmConfirm", [&](QWidget& confirm) {
                hand.at("frmWebBrowser", [&site](QWidget& browser) {
                    expectTitle(browser, "Family tree and photo album");
                    for (const auto& [pages, title] : {std::pair("DescTree_*", "Descendants of Barnaby Whiskerton"),
                                                       {"AncTree_*", "Ancestors of Barnaby Whiskerton"},
                                                       {"Outline_*", "Descendants of Barnaby Whiskerton"},
                                                       {"CTree_*", "Collapsible family tree"}}) {
                        const QString page = site + '/' + QDir(site).entryList({pages}).value(0);
                        Find<QWidget>(browser, "webWindow").setProperty("url", QUrl::fromLocalFile(page));
                        expectTitle(browser, title);
                    }
                    Press(browser, "cmdClose");
                });
                Press(confirm, "cmdBrowser");
                Press(confirm, "cmdOK");
            });
            Press(wizard, "cmdFinish");
        });
        Press(setups, "cmdNew");
        Press(setups, "cmdClose");
    });
    Press(window(), "mnuCreateWebPages");
    EXPECT_TRUE(ReadWholeFile(site + "/main.html").contains("Nine Lives"));
    EXPECT_TRUE(ReadWholeFile(site + "/main.html").contains("About <B>cats</B>."));
    EXPECT_TRUE(ReadWholeFile(site + "/bottom.html").contains("../cats.html"));
    EXPECT_FALSE(QDir(site).entryList({"PersPage_*.html"}).isEmpty());
    EXPECT_FALSE(world.settings.document("newsetups.json").isEmpty());
    EXPECT_EQ(stored("SELECT count(DISTINCT GenDisplayType) FROM TreeHeads WHERE SetupName = 'All cats'"),
              QStringList(QString::number(TreeDisplays().size())));
}

TEST_F(WizardTest, EachControlWritesItsColumnAtOnceAndCancelUndoesIt)
{
    const QString picture_ = picture("arms.jpg", {500, 20});
    const QString columns = "SELECT Standalone, SiteTitle, MaxTotalGens, MaxPrivacyAge, HideLiving, PersPages,"
                            " Pictures4ThisTreeOnly, PageStyle, CellFg, CellBg, EmblemFiletype FROM WebSiteInfo";
    QStringList before;
    const auto now = [&] { return Rows(world.connection(), columns); };
    wizard([&](QWidget& wizard) {
        before = now();
        goTo(wizard, "Step 1");
        Press(wizard, "optSubsite");
        goTo(wizard, "First page");
        Type(wizard, "txtSiteTitle", "T");
        hand.choose("Picture of the First Page", picture_);
        Press(wizard, "cmdChooseEmblem");
        EXPECT_FALSE(Find<QLabel>(wizard, "imgEmblem").pixmap().isNull());
        goTo(wizard, "General");
        Type(wizard, "spnMaxTotalGens", "7");
        Type(wizard, "spnMaxPrivacyAge", "77");
        for (const char* box : {"chkHideLiving", "chkPersPages", "chkPictures4ThisTreeOnly"}) {
            Press(wizard, box);
        }
        hand.press("frmItemsToInclude", "cmdOK");
        Press(wizard, "cmdItems");
        goTo(wizard, "Display options");
        Choose(wizard, "cboPageStyle", "Memories");
        for (const char* button : {"cmdTextColor", "cmdBackgroundColor"}) {
            hand.at("colorDialog", [](QWidget& dialog) {
                static_cast<QColorDialog&>(dialog).setCurrentColor("#010203");
                static_cast<QColorDialog&>(dialog).accept();
            });
            Press(wizard, button);
        }
        EXPECT_EQ(now(), QStringList("0|T|7|77|1|1|0|1|66051|66051|jpg"));
        goTo(wizard, "First page");
        Press(wizard, "cmdRemoveEmblem");
        EXPECT_EQ(TextOf(wizard, "imgEmblem"), "No picture");
        hand.answer("You are about to lose all changes", QMessageBox::No);
        Press(wizard, "cmdCancel");
        EXPECT_TRUE(now().front().startsWith("0|T|")) << "No keeps everything";
        lose(wizard);
    });
    EXPECT_EQ(now(), before);
    wizard([&](QWidget& wizard) {
        goTo(wizard, "General");
        Press(wizard, "chkHideLiving");
        Press(wizard, "cmdSave");
        EXPECT_FALSE(IsEnabled(wizard, "cmdSave"));
        wizard.close();
    });
    EXPECT_EQ(Rows(world.connection(), "SELECT HideLiving FROM WebSiteInfo"), QStringList("1"));
}

TEST_F(WizardTest, WhatIsRefusedIsToldAndStaysToBeMended)
{
    wizard([&](QWidget& wizard) {
        goTo(wizard, "First page");
        Find<QLineEdit>(wizard, "txtSiteTitle").setText(QString(255, 'x'));
        auto& title = Find<QLineEdit>(wizard, "txtSiteTitle");
        title.setFocus();
        QTest::keyClicks(&title, "yz");
        EXPECT_TRUE(TextOf(wizard, "lblRefusedSiteTitle").contains("255"));
        hand.answer("You are about to lose all changes", QMessageBox::No);
        Press(wizard, "cmdCancel");
        for (const char* button : {"cmdNext", "cmdBack", "cmdSave"}) {
            hand.answer("Web Site Setup");
            Press(wizard, button);
            EXPECT_EQ(pageOf(wizard), "First page");
            EXPECT_EQ(title.text().size(), 257);
        }
        Type(wizard, "txtSiteTitle", "short");
        hand.choose("Picture of the First Page", world.write("letter.gif", "Dear Ann"));
        hand.answer("Web Site Setup");
        Press(wizard, "cmdChooseEmblem");
        goTo(wizard, "Step 2");
        Type(wizard, "txtWebPageFolder", "");
        EXPECT_FALSE(TextOf(wizard, "lblRefusedWebPageFolder").isEmpty());
        Type(wizard, "txtWebPageFolder", "/");
        EXPECT_TRUE(TextOf(wizard, "lblRefusedWebPageFolder").isEmpty());
        EXPECT_TRUE(TextOf(wizard, "lblFolderWarning").contains("the root of the file system"));
        Type(wizard, "txtWebPageFolder", world.path("letter.gif") + "/site");
        EXPECT_TRUE(TextOf(wizard, "lblFolderWarning").startsWith("Nothing can be written into"));
        lose(wizard);
    });
}

TEST_F(WizardTest, NoTwoControlsOfAPageHaveTheSameAccessKey)
{
    wizard([&](QWidget& wizard) {
        for (const QString& page : Shown(wizard, "lstPages")) {
            if (page == "Finished!") {
                chooseHead(wizard, "Root, Adam");
            }
            goTo(wizard, page);
            QStringList keys = AccessKeys(wizard);
            EXPECT_GE(keys.size(), 4);
            EXPECT_EQ(keys.removeDuplicates(), 0) << pageOf(wizard);
        }
        lose(wizard);
    });
}

TEST_F(WizardTest, TreesAreAddedEditedAndDeleted)
{
    wizard([&](QWidget& wizard) {
        goTo(wizard, "Display options");
        EXPECT_FALSE(IsEnabled(wizard, "cmdFinish"));
        hand.answer("You cannot delete the last remaining family tree definition.");
        Press(wizard, "cmdDelete");
        hand.answer("No Tree Head");
        Press(wizard, "cmdApply");
        chooseHead(wizard, "Root, Adam");
        EXPECT_TRUE(IsEnabled(wizard, "cmdFinish"));
        Choose(wizard, "cboIcon", "3");
        Press(wizard, "cmdApply");
        EXPECT_FALSE(IsEnabled(wizard, "cboDisplay"));
        QTest::keyClick(&Find<QWidget>(wizard, "cmdAdd"), Qt::Key_Return);
        EXPECT_EQ(pageOf(wizard), "Display options");
        Choose(wizard, "cboDisplay", "CollapsiTree");
        EXPECT_EQ(Shown(wizard, "dtgTrees"), QStringList({"Root, Adam|Outline", "|CollapsiTree"}));
        auto& grid = Find<QAbstractItemView>(wizard, "dtgTrees");
        grid.setCurrentIndex(grid.model()->index(0, 0));
        chooseHead(wizard, "Bough");
        EXPECT_EQ(Shown(wizard, "dtgTrees"), QStringList({"Bough, Eve|Outline", "|CollapsiTree"}));
        refused(wizard, "No tree head");
        grid.setCurrentIndex(grid.model()->index(1, 0));
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            hand.answer("Deleting family tree", answer);
            Press(wizard, "cmdDelete");
        }
        next(wizard);
        EXPECT_EQ(pageOf(wizard), "Finished!");
        Press(wizard, "cmdSave");
        Press(wizard, "cmdCancel");
    });
    EXPECT_EQ(Rows(world.connection(), "SELECT TreeHeadId, GenDisplayType, IconNo FROM TreeHeads"),
              QStringList("2|Outline|3"));
}

TEST_F(WizardTest, WhereNobodyIsThereIsNoHeadToChoose)
{
    ASSERT_TRUE(CreateFamilyFile(world.file, world.path("nobody.kvf"), environment));
    wizard([&](QWidget& wizard) {
        goTo(wizard, "Display options");
        hand.answer("The index of names does not exist. It will be generated");
        Press(wizard, "cmdIndex");
        Press(wizard, "cmdCancel");
    });
}

TEST_F(WizardTest, WindowsFitTheScreenAlsoWhereTheyStoodOnALargerOne)
{
    QWidget large;
    large.resize(4000, 3000);
    world.settings.setValue(setting::windows, "frmSiteWizard", large.saveGeometry().toBase64());
    wizard([&](QWidget& wizard) {
        const QSize screen = wizard.screen()->availableSize();
        EXPECT_EQ(wizard.size().boundedTo(screen), wizard.size());
        goTo(wizard, "General");
        QTest::keyClick(&Find<QWidget>(wizard, "spnMaxTotalGens"), Qt::Key_Return);
        EXPECT_FALSE(IsEnabled(wizard, "cmdSave")) << "the same number is no change";
        Press(wizard, "cmdCancel");
    });
}

TEST_F(WizardTest, PagesOfANewSetupComeInTheirOrderAndFinishGoesToWhatIsMissing)
{
    wizard(
        [&](QWidget& wizard) {
            const auto& pages = Find<QListWidget>(wizard, "lstPages");
            next(wizard);
            EXPECT_TRUE(pages.item(0)->flags() & Qt::ItemIsEnabled);
            EXPECT_FALSE(pages.item(2)->flags() & Qt::ItemIsEnabled);
            next(wizard, 4);
            chooseHead(wizard, "Root, Adam");
            Press(wizard, "cmdBack");
            Type(wizard, "spnMaxGenOnPage", "0");
            EXPECT_FALSE(IsEnabled(wizard, "cmdFinish"));
            Press(wizard, "cmdBack");
            hand.answer("The maximum number of generations on a page");
            goTo(wizard, "Display options");
            EXPECT_EQ(pageOf(wizard), "General");
            Type(wizard, "spnMaxGenOnPage", "2");
            goTo(wizard, "Step 2");
            Type(wizard, "txtWebPageFolder", "/");
            hand.answer("Building Web Pages");
            Press(wizard, "cmdFinish");
            EXPECT_TRUE(wizard.isVisible());
            Type(wizard, "txtWebPageFolder", world.write("letter.txt", "Dear Ann") + "/site");
            hand.answer("The output folder");
            hand.answer("Cannot create folder");
            Press(wizard, "cmdFinish");
            EXPECT_TRUE(wizard.isVisible());
            QDir(world.path("")).mkpath("other");
            const QString old = world.write("other/old.html", "old");
            Type(wizard, "txtWebPageFolder", world.path("other"));
            hand.answer("There are already some files", QMessageBox::Cancel);
            Press(wizard, "cmdFinish");
            goTo(wizard, "Display options");
            Press(wizard, "cmdAdd");
            chooseHead(wizard, "Root, Ida");
            Press(wizard, "cmdApply");
            hand.answer("There are already some files");
            hand.answer("Family-less Ancestor", QMessageBox::Cancel);
            Press(wizard, "cmdFinish");
            EXPECT_TRUE(wizard.isVisible() && QFile::exists(old));
            hand.answer("There are already some files");
            hand.answer("Family-less Ancestor");
            world.settings.setValue(setting::exportWizard, setting::confirmScreen, "0");
            Press(wizard, "cmdFinish");
            EXPECT_FALSE(QFile::exists(old));
        },
        WizardMode::New);
    EXPECT_TRUE(QFile::exists(world.path("other/index.html")));
}

} // namespace
