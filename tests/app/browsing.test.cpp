// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "app/common/progresswindow.h"
#include "app/frmabout.h"

#include <QtCore/QDir>
#include <QtGui/QAction>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTextBrowser>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

using BrowsingTest = AppTest;

TEST_F(BrowsingTest, KeysMoveThroughTheListAndOpenRecords)
{
    start(familyFile(3));
    const std::pair<QKeyCombination, const char*> steps[] = {{Qt::Key_PageDown, "Picture 2 of 3"},
                                                             {Qt::CTRL | Qt::Key_End, "Picture 3 of 3"},
                                                             {Qt::Key_PageUp, "Picture 2 of 3"},
                                                             {Qt::CTRL | Qt::Key_Home, "Picture 1 of 3"},
                                                             {Qt::Key_F2, "Editing"},
                                                             {Qt::CTRL | Qt::Key_S, "Picture 1 of 3"},
                                                             {Qt::Key_Insert, "Editing"},
                                                             {Qt::CTRL | Qt::Key_S, "Picture 4 of 4"}};
    for (const auto& [combination, expected] : steps) {
        key(combination);
        EXPECT_EQ(position(), expected);
    }
    hand.answer("Confirm Record Delete", QMessageBox::No);
    key(Qt::Key_Delete);
    EXPECT_EQ(position(), "Picture 4 of 4");
    hand.answer("Confirm Record Delete", QMessageBox::Yes);
    key(Qt::Key_Delete);
    EXPECT_EQ(position(), "Picture 3 of 3");
    EXPECT_EQ(stored("SELECT count(*) FROM AlbumTOC"), QStringList("3"));
}

TEST_F(BrowsingTest, TheListIsSortedByHeaderAndSearchedByNumber)
{
    start(familyFile(12));
    const auto first = [this] { return Shown(window(), "dtgTOC").first().section(u'|', 0, 0); };
    for (const auto& [column, expected] : {std::pair(1, "12"), {1, "1"}, {3, "1"}, {3, "9"}, {0, "1"}}) {
        ClickHeader(window(), "dtgTOC", column);
        EXPECT_EQ(first(), expected) << column;
        EXPECT_TRUE(Shown(window(), "dtgTOC")[CurrentRow(window(), "dtgTOC")].startsWith("1|"));
    }
    hand.enter("Search by picture ID", "7");
    Press(window(), "mnuFind");
    EXPECT_EQ(position(), "Picture 7 of 12");
    hand.enter("Search by picture ID", "7a");
    hand.answer("Illegal picture ID", QMessageBox::Retry);
    hand.enter("Search by picture ID", "99");
    hand.answer("No such picture");
    Press(window(), "mnuFind");
    EXPECT_EQ(position(), "Picture 7 of 12");
}

TEST_F(BrowsingTest, ColumnsFitTheirContentsUntilTheUserSetsTheirWidths)
{
    start(familyFile());
    auto& list = Find<QTableView>(window(), "dtgTOC");
    const int title = 3;
    for (const char* text : {"A picnic at the lake", "A picnic at the lake and the long way home from there"}) {
        const int before = list.columnWidth(title);
        key(Qt::Key_Insert);
        Type(window(), "txtTitle", text);
        key(Qt::CTRL | Qt::Key_S);
        EXPECT_GT(list.columnWidth(title), before) << text;
    }
    list.setColumnWidth(title, 70);
    key(Qt::Key_F5);
    EXPECT_EQ(list.columnWidth(title), 70);
}

TEST_F(BrowsingTest, ThumbnailsStandForTheListUnlessItIsTooLong)
{
    start(familyFile(5));
    auto& gallery = Find<QAbstractItemView>(window(), "picTGallery");
    Press(window(), "mnuThumbView");
    EXPECT_TRUE(gallery.isVisible());
    QTest::mouseClick(gallery.viewport(), Qt::LeftButton, {},
                      gallery.visualRect(gallery.model()->index(3, 0)).center());
    EXPECT_EQ(position(), "Picture 4 of 5");
    Press(window(), "mnuThumbView");
    EXPECT_FALSE(gallery.isVisible());
    start(familyFile(4000));
    Press(window(), "mnuThumbView");
    EXPECT_FALSE(Find<QWidget>(window(), "picTGallery").isVisible());
    EXPECT_FALSE(Find<QAction>(window(), "mnuThumbView").isChecked());
}

TEST_F(BrowsingTest, ThumbnailsAreShownWhileAnotherFileTakesTheirPlace)
{
    start(familyFile(300));
    Press(window(), "mnuThumbView");
    hand.choose("Create New Family File", world.path("new.kvf"));
    hand.at("Family File Creation Confirmation", [this](QWidget& box) {
        auto& gallery = Find<QAbstractItemView>(window(), "picTGallery");
        gallery.scrollToBottom();
        gallery.grab();
        static_cast<QMessageBox&>(box).button(QMessageBox::Ok)->click();
    });
    Press(window(), "mnuNew");
    EXPECT_EQ(position(), "No pictures");
}

TEST_F(BrowsingTest, TheWindowComesBackAsItWasLeft)
{
    start(familyFile(1));
    window().resize(790, 700);
    auto* halves = &Find<QSplitter>(window(), "splHalves");
    const QPoint middle = halves->handle(1)->rect().center();
    QTest::mousePress(halves->handle(1), Qt::LeftButton, {}, middle);
    QTest::mouseMove(halves->handle(1), middle - QPoint(0, 40));
    QTest::mouseRelease(halves->handle(1), Qt::LeftButton, {}, middle - QPoint(0, 40));
    const QList<int> sizes = halves->sizes();
    window().close();
    start();
    EXPECT_EQ(window().size(), QSize(790, 700));
    EXPECT_EQ(Find<QSplitter>(window(), "splHalves").sizes(), sizes);
}

TEST_F(BrowsingTest, TheWelcomeWindowOpensCreatesAndShowsTheCats)
{
    const QString file = familyFile();
    const QString sample = world.path("share/felinity.kvf");
    QDir().mkpath(world.path("share"));
    QFile::link(world.application.file("icons"), world.path("share/icons"));
    hand.press("frmWelcome", "cmdCats");
    hand.answer("Couldn't find test family file ");
    world.application = ApplicationFolder(world.path("share"));
    start();

    QFile::copy(file, sample);
    Connection(sample, OpenMode::ReadWrite).execute("UPDATE WebSiteInfo SET WebPageFolder = '/fampages/Default'");
    hand.press("frmWelcome", "cmdCats");
    hand.answer("Opening Test File");
    start();
    EXPECT_EQ(window().windowTitle(), "Stemwright - " + sample);
    EXPECT_EQ(stored("SELECT WebPageFolder FROM WebSiteInfo"),
              QStringList(world.application.pagesFolder() + "/Default"));
    start();

    hand.choose("Open Existing Family File", file);
    Press(window(), "mnuOpen");
    EXPECT_EQ(window().windowTitle(), "Stemwright - " + file);
    Find<QMenu>(window(), "mnuRecent").actions().at(1)->trigger();
    EXPECT_EQ(window().windowTitle(), "Stemwright - " + sample);
    hand.choose("Save Family File As", file);
    hand.answer(file + " already exists.\nDo you want to replace it?", QMessageBox::Yes);
    Press(window(), "mnuSaveAs");

    hand.choose("Create New Family File", world.path("new.kvf"));
    hand.at("Family File Creation Confirmation", [](QWidget& box) {
        box.findChild<QCheckBox*>()->setChecked(true);
        static_cast<QMessageBox&>(box).button(QMessageBox::Ok)->click();
    });
    Press(window(), "mnuNew");
    hand.choose("Create New Family File", world.path("second.kvf"));
    Press(window(), "mnuNew");
    EXPECT_EQ(world.settings.value(setting::openCreateFamFile, setting::lastFamilyFile), world.path("second.kvf"));
}

TEST_F(BrowsingTest, ANameWithQuotesIsTheNameOfOneFile)
{
    const QString named = world.path("Aunt \"Emmy\" 1");
    const QString file = named + ".kvf";
    start(familyFile());
    hand.choose("Save Family File As", named);
    Press(window(), "mnuSaveAs");
    EXPECT_TRUE(QFile::exists(file));
    hand.choose("Save Family File As", named);
    hand.answer(file + " already exists.\nDo you want to replace it?", QMessageBox::No);
    Press(window(), "mnuSaveAs");
    hand.at("fileDialog/Open Existing Family File", [&](QWidget& dialog) {
        auto& box = Find<QLineEdit>(dialog, "fileNameEdit");
        box.setText(world.path("Aunt \"Family\""));
        hand.answer(world.path("Aunt \"Family\" was not found."));
        QMetaObject::invokeMethod(&dialog, "accept");
        EXPECT_TRUE(dialog.isVisible());
        box.setText(file);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    Press(window(), "mnuOpen");
    EXPECT_EQ(window().windowTitle(), "Stemwright - " + file);
    EXPECT_FALSE(QFile::exists("Emmy.kvf"));
}

TEST_F(BrowsingTest, SplashAndProgressLetTheUserInOnlyWhereTheyMay)
{
    for (const bool byKey : {true, false}) {
        auto* splash = new frmSplash(world.application);
        const QPointer<frmSplash> alive(splash);
        splash->show();
        byKey ? QTest::keyClick(splash, Qt::Key_Space) : QTest::mouseClick(splash, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([&alive] { return alive.isNull(); }));
    }
    ProgressWindow progress("Working", "First step", nullptr);
    QWidget& shown = *QApplication::activeModalWidget();
    auto& stop = Find<QWidget>(shown, "cmdStop");
    EXPECT_FALSE(stop.isVisible());
    shown.close();
    EXPECT_TRUE(shown.isVisible());
    EXPECT_FALSE(progress.stopWished());
    EXPECT_TRUE(stop.isVisible());
    QTest::qSleep(60);
    progress.setPercent(40);
    EXPECT_EQ(Find<QProgressBar>(shown, "pgbProgress").value(), 40);
    Press(shown, "cmdStop");
    EXPECT_TRUE(progress.stopWished());
    EXPECT_FALSE(stop.isEnabled());
}

TEST_F(BrowsingTest, HelpOpensThePageOfTheWindow)
{
    QTextBrowser reader;
    QDesktopServices::setUrlHandler("file", &reader, "setSource");
    start(familyFile());
    key(Qt::Key_F1);
    QDesktopServices::unsetUrlHandler("file");
    EXPECT_TRUE(reader.source().path().startsWith(world.application.file("manual/")))
        << qPrintable(reader.source().path());
}

} // namespace
