// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QDropEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <sys/resource.h>

#include <csignal>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

/// While it lives no file can be written, as on a disk that is full or gone.
class DiskFailure
{
public:
    DiskFailure()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_usual);
        const rlimit none{0, m_usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }

    DiskFailure(const DiskFailure&) = delete;
    DiskFailure& operator=(const DiskFailure&) = delete;

    ~DiskFailure() { setrlimit(RLIMIT_FSIZE, &m_usual); }

private:
    rlimit m_usual{};
};

class BadHandsTest : public AppTest
{
protected:
    void drop(const QStringList& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths) {
            urls << QUrl::fromLocalFile(path);
        }
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window(), &enter);
        QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window(), &event);
        QApplication::processEvents();
    }

    QString title() { return Find<QLineEdit>(window(), "txtTitle").text(); }
};

TEST_F(BadHandsTest, WhatIsNoPictureIsRefusedAtOnce)
{
    const QString video = world.path("video.jpg");
    QFile file(video);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.resize(2LL << 30));
    start(familyFile(1));
    for (const QStringList& paths : {QStringList(world.path("")), {picture("a.jpg"), picture("b.jpg")}, {}}) {
        hand.answer("Please drop one picture file");
        drop(paths);
        hand.wait();
        EXPECT_EQ(position(), "Picture 1 of 1");
    }
    QElapsedTimer time;
    time.start();
    hand.answer("Picture Too Large");
    drop({video});
    hand.wait();
    EXPECT_LT(time.elapsed(), 2000);
    hand.answer("Open Picture");
    drop({world.write("damaged.jpg", QByteArray("\xFF\xD8\xFF\xE0 is how a picture begins"))});
    hand.wait();
    EXPECT_EQ(position(), "Editing");
    drop({picture("fine.jpg")});
    key(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(stored("SELECT PicFilename FROM AlbumTOC WHERE PicId > 1"), QStringList("fine"));
}

TEST_F(BadHandsTest, ATitleOfAHundredThousandCharactersIsRefusedAndNotLost)
{
    start(familyFile(1));
    key(Qt::Key_F2);
    QApplication::clipboard()->setText(QString(100'000, u'x'));
    QElapsedTimer time;
    time.start();
    auto& box = Find<QWidget>(window(), "txtTitle");
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    hand.answer("The record could not be written; nothing in the family file has changed.\n\nThe title");
    key(Qt::CTRL | Qt::Key_S);
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_EQ(title().size(), 100'000);
    Type(window(), "txtTitle", "Short");
    key(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(stored("SELECT Title FROM AlbumTOC ORDER BY PicId"), QStringList("Short"));
}

TEST_F(BadHandsTest, WithoutATreeThereIsNobodyToPick)
{
    world.newFamilyFile();
    world.file.close();
    start(world.path("Family.kvf"));
    hand.answer("The list of names does not exist.");
    Press(window(), "mnuContEdit");
    Press(window(), "mnuAddPicRec");
    hand.answer("The index of names does not exist. It will be built");
    Press(window(), "cmdShowIndex");
    Press(window(), "cmdCancel");
    hand.at("frmQueries", [this](QWidget& list) {
        hand.at("frmEditQuery", [this](QWidget& editor) {
            hand.answer("The index of names does not exist. It will be generated");
            Press(editor, "cmdIndex");
            Press(editor, "cmdClose");
        });
        Press(list, "cmdEdit");
        Press(list, "cmdClose");
    });
    Press(window(), "mnuQueries");
    EXPECT_EQ(position(), "No pictures");
}

TEST_F(BadHandsTest, ADiskThatFailsLosesNothing)
{
    start(familyFile(2));
    key(Qt::Key_F2);
    Type(window(), "txtTitle", "Kept");
    {
        const DiskFailure failure;
        hand.answer("The record could not be written; nothing in the family file has changed.");
        key(Qt::CTRL | Qt::Key_S);
        EXPECT_EQ(position(), "Editing");
        EXPECT_EQ(title(), "Kept");
    }
    key(Qt::CTRL | Qt::Key_S);
    {
        const DiskFailure failure;
        hand.answer("Confirm Record Delete", QMessageBox::Yes);
        hand.answer("The record could not be deleted; nothing in the family file has changed.");
        key(Qt::Key_Delete);
        EXPECT_EQ(position(), "Picture 1 of 2");
    }
    EXPECT_EQ(stored("SELECT Title FROM AlbumTOC ORDER BY PicId"), QStringList({"Kept", "Picture 2"}));
}

TEST_F(BadHandsTest, AFileThatIsGoneIsNotWrittenIntoThinAir)
{
    const QString file = familyFile(2);
    const QString rescue = world.path("rescue.kvf");
    start(file);
    for (const char* title : {"First", "Second"}) {
        key(Qt::Key_F2);
        Type(window(), "txtTitle", title);
        if (QString(title) == "First") {
            key(Qt::CTRL | Qt::Key_S);
        }
    }
    QFile::remove(file);
    hand.answer("The record could not be written; nothing in the family file has changed.\n\n"
                "The family file is no longer in its place");
    key(Qt::CTRL | Qt::Key_S);
    Press(window(), "cmdCancel");
    hand.choose("Save Family File As", rescue);
    Press(window(), "mnuSaveAs");
    world.settings.setValue(setting::openCreateFamFile, setting::lastFamilyFile, rescue);
    EXPECT_EQ(stored("SELECT Title FROM AlbumTOC ORDER BY PicId"), QStringList({"First", "Picture 2"}));
}

TEST_F(BadHandsTest, AFileThatCannotBeReadEndsInMessagesNotInACrash)
{
    const QString file = familyFile(300);
    start(file);
    QFile(file).resize(0);
    Press(window(), "last");
    for (const char* action : {"mnuContEdit", "mnuProperties"}) {
        EXPECT_GT(hand.whateverComes([&] { Press(window(), action); }), 0) << action;
    }
    EXPECT_EQ(position(), "Picture 300 of 300");
}

TEST_F(BadHandsTest, TwoWindowsOnOneFileAreToldSo)
{
    const QString file = familyFile(1);
    FamilyFile other;
    ASSERT_TRUE(OpenFamilyFile(other, file, world.environment));
    hand.answer("The family file " + file + " cannot be opened.\n\nIt is in use by this or another program.");
    hand.at("frmWelcome", [](QWidget& welcome) { static_cast<QDialog&>(welcome).reject(); });
    start(file);
    EXPECT_EQ(position(), "");
    for (const char* name : {"mnuAddPicRec", "mnuSaveAs", "mnuProperties", "first", "mnuThumbView", "mnuQueries"}) {
        EXPECT_FALSE(Find<QAction>(window(), name).isEnabled()) << name;
    }
}

TEST_F(BadHandsTest, WhatIsBusyDoesNotClose)
{
    QByteArray people;
    for (int number = 1; number <= 20'000; ++number) {
        people += QByteArray("0 @I%@ INDI\n1 NAME Someone /Busy/\n").replace('%', QByteArray::number(number));
    }
    start(familyFile(1));
    hand.choose("Select GEDCOM file", world.write("large.ged", "0 HEAD\n1 CHAR UTF-8\n" + people + "0 TRLR\n"));
    hand.answer("Creating Backup Family File");
    hand.at("frmProgress", [this](QWidget&) {
        QApplication::closeAllWindows();
        window().close();
        drop({picture("late.jpg")});
        EXPECT_TRUE(window().isVisible());
    });
    hand.press("frmImportReport", "cmdOK");
    Press(window(), "mnuImportGedcom");
    EXPECT_EQ(position(), "Picture 1 of 1");
    hand.at("frmQueries", [](QWidget& list) {
        QApplication::closeAllWindows();
        EXPECT_FALSE(list.isVisible());
    });
    Press(window(), "mnuQueries");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(stored("SELECT count(*) FROM Indi"), QStringList("20000"));
}

} // namespace
