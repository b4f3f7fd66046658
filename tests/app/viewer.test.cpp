// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "app/viewer/frmwebbrowser.h"

#include <QtCore/QDir>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QLabel>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

/// Takes what would be opened by other programs.
class Elsewhere : public QObject
{
    Q_OBJECT

public:
    Elsewhere()
    {
        for (const char* scheme : schemes) {
            QDesktopServices::setUrlHandler(scheme, this, "open");
        }
    }

    ~Elsewhere() override
    {
        for (const char* scheme : schemes) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    QStringList opened;

public Q_SLOTS:

    void open(const QUrl& address) { opened << address.toString(); }

private:
    static constexpr const char* schemes[] = {"http", "https", "mailto", "file"};
};

/// A page of links below each other, each as high as `linkHeight`.
class ViewerTest : public AppTest
{
protected:
    static constexpr int linkHeight = 40;

    QString site(const QList<QByteArray>& links)
    {
        QByteArray page =
            "<!DOCTYPE html><title>First</title><style>body{margin:0}a{display:block;height:40px}</style>";
        for (const QByteArray& link : links) {
            page += "<a " + link + ">here</a>";
        }
        QDir(world.path("")).mkpath("site");
        world.write("outside.gif", QByteArray::fromBase64("R0lGODlhAQABAAAAACwAAAAAAQABAAA="));
        world.write("site/second.html", "<!DOCTYPE html><title>Second</title>");
        return world.write("site/index.html",
                           page + "<img src='../outside.gif' onerror='document.title = \"Guarded\"'>");
    }

    void show(const QString& page, Hand::Action act)
    {
        hand.at("frmWebBrowser", std::move(act));
        ShowWebBrowser(LocalSite::published(page), environment, nullptr);
    }

    static QWidget& inside(QWidget& browser) { return *Find<QWidget>(browser, "webWindow").focusProxy(); }

    static QPoint place(int link) { return {20, link * linkHeight + linkHeight / 2}; }

    /// Moves the mouse to a link until the page, which has its title before it is drawn, notices.
    static void point(QWidget& browser, int link)
    {
        EXPECT_TRUE(Await([&browser, link, shift = 0]() mutable {
            QTest::mouseMove(&inside(browser), place(link) + QPoint(++shift % 2, 0));
            return !Find<QLabel>(browser, "lblStatusLine").text().isEmpty();
        }));
    }

    static void click(QWidget& browser, int link)
    {
        point(browser, link);
        QTest::mouseClick(&inside(browser), Qt::LeftButton, {}, place(link));
    }

    static void expectTitle(QWidget& browser, const QString& title)
    {
        EXPECT_TRUE(Await([&] { return browser.windowTitle() == "Web Browser - " + title; }))
            << title << " is not " << browser.windowTitle();
    }

    static void expectPage(QWidget& browser, const QString& title, bool back, bool forward)
    {
        expectTitle(browser, title);
        EXPECT_TRUE(Await([&] {
            return Find<QWidget>(browser, "cmdBack").isEnabled() == back &&
                   Find<QWidget>(browser, "cmdFwd").isEnabled() == forward;
        })) << title
            << back << forward;
    }

    Elsewhere elsewhere;
};

TEST_F(ViewerTest, PagesAreLeafedThroughByButtonsAndKeys)
{
    show(site({"href='second.html'", "href='second.html#new' target='_blank'"}), [](QWidget& browser) {
        expectPage(browser, "Guarded", false, false);
        point(browser, 0);
        EXPECT_TRUE(Find<QLabel>(browser, "lblStatusLine").text().endsWith("site/second.html"));
        click(browser, 0);
        expectPage(browser, "Second", true, false);
        Press(browser, "cmdBack");
        expectPage(browser, "Guarded", false, true);
        QTest::keyClick(&inside(browser), Qt::Key_Right, Qt::AltModifier);
        expectPage(browser, "Second", true, false);
        QTest::keyClick(&inside(browser), Qt::Key_Left, Qt::AltModifier);
        expectPage(browser, "Guarded", false, true);
        click(browser, 1);
        expectPage(browser, "Second", true, false);
        QTest::keyClick(&inside(browser), Qt::Key_Escape);
        EXPECT_FALSE(browser.isVisible());
    });
    EXPECT_EQ(elsewhere.opened, QStringList());
}

TEST_F(ViewerTest, WhatLeadsOutOfTheSiteIsOpenedElsewhere)
{
    show(site({"href='http://example.org/'", "href='https://example.org/' target='_blank'",
               "href='mailto:a@example.org'", "href='../outside.html'",
               "href='javascript:location=\"http://example.net/\"'", "href='second.html'"}),
         [this](QWidget& browser) {
             expectTitle(browser, "Guarded");
             for (int link = 0; link < 6; ++link) {
                 click(browser, link);
             }
             // Only the last one, which is clicked after all others, is shown here.
             expectTitle(browser, "Second");
             EXPECT_TRUE(Await([this] { return elsewhere.opened.size() == 4; }));
             QTest::keyClick(&inside(browser), Qt::Key_W, Qt::ControlModifier);
         });
    elsewhere.opened.sort();
    EXPECT_EQ(elsewhere.opened, QStringList({"file://" + world.path("outside.html"), "http://example.org/",
                                             "https://example.org/", "mailto:a@example.org"}));
}

} // namespace

#include "viewer.test.moc"
