// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setupediting.h"

#include "web/setupviewing.h"
#include "web/setupworld.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString setupName = QStringLiteral("Default");

class SetupEditingTest : public testing::Test
{
protected:
    SetupWorld world;
    SetupEditing editing{world.connection(), world.own, setupName};
    TreeEditing& trees = editing.trees();
};

} // namespace

TEST_F(SetupEditingTest, TypedValuesAreStoredAsTheirColumnsHoldThem)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"sitetitle", "Ann's \"<b>\" site", "Ann's \"<b>\" site"},
        {"TitleStory", "", ""},
        {"Standalone", "no", "0"},
        {"Standalone", "true", "-1"},
        {"Pictures4ThisTreeOnly", "1", "-1"},
        {"PersPages", "YES", "1"},
        {"HideLiving", "-1", "1"},
        {"HideLiving", "false", "0"},
        {"PageStyle", "1", "1"},
        {"CellFg", "#ff8000", "16744448"},
        {"CellBg", "0xC0C0C0", "12632256"},
        {"CellBg", "12632256", "12632256"},
        {"MaxGenOnPage", " 2 ", "2"},
        {"MaxTotalGens", "32767", "32767"},
        {"MaxPrivacyAge", "0", "0"},
        {"WebPageFolder", "/sites/./mine/", "/sites/mine"},
        {"WebPageFolder", "D:\\Site", "D:\\Site"},
        {"EmblemFiletype", "jpg", "jpg"},
    };
    for (const auto& [name, typed, stored] : cases) {
        SCOPED_TRACE(name);
        const QString column = QString::fromUtf8(name);
        editing.set(column, QString::fromUtf8(typed));
        for (const char* when : {"as typed", "as shown"}) {
            EXPECT_EQ(world.column(QStringLiteral("SELECT %1 FROM WebSiteInfo").arg(column)),
                      QStringList{QString::fromUtf8(stored)})
                << when;
            editing.set(column, editing.settingText(SetupColumnNamed(column)));
        }
    }
}

TEST_F(SetupEditingTest, ValuesThatAColumnCannotHoldAreRefused)
{
    const std::pair<const char*, QStringList> cases[] = {
        {"PersPages", {QStringLiteral("2")}},
        {"PageStyle", {QStringLiteral("2")}},
        {"CellFg", {QStringLiteral("#fff"), QStringLiteral("16777216"), QStringLiteral("red")}},
        {"MaxTotalGens", {QStringLiteral("32768"), QStringLiteral("0")}},
        {"MaxPrivacyAge", {QStringLiteral("-1")}},
        {"MaxGenOnPage", {QString()}},
        {"WebPageFolder", {QStringLiteral(" ")}},
        {"SiteTitle", {QString(256, u'x')}},
        {"EmblemFiletype", {QStringLiteral("../gif")}},
        {"SetupName", {QStringLiteral("Other")}}};
    const QString all = QStringLiteral("SELECT PersPages || PageStyle || CellFg || MaxTotalGens || MaxPrivacyAge ||"
                                       " MaxGenOnPage || WebPageFolder || SiteTitle || EmblemFiletype || SetupName ||"
                                       " EmblemPicture FROM WebSiteInfo");
    const QStringList before = world.column(all);
    for (const auto& [column, values] : cases) {
        const QString name = QString::fromLatin1(column);
        for (const QString& value : values) {
            EXPECT_TRUE(ErrorOf([&] { editing.set(name, value); }).contains(name)) << column << value.toStdString();
        }
    }
    EXPECT_EQ(world.column(all), before);
    EXPECT_TRUE(ErrorOf([&] { editing.set(QStringLiteral("Colour"), {}); }).contains(QStringLiteral("CellFg, CellBg")));
}

TEST_F(SetupEditingTest, EmblemIsReadFromAnImageFileOnly)
{
    const QString emblem = QStringLiteral("SELECT EmblemPicture || '.' || EmblemFiletype FROM WebSiteInfo");
    const QString column = QStringLiteral("EmblemPicture");
    editing.set(column, world.write(QStringLiteral("arms.GIF"), "GIF89a arms"));
    EXPECT_EQ(world.column(emblem), QStringList{QStringLiteral("GIF89a arms.GIF")});
    editing.set(column, world.write(QStringLiteral("arms.txt"), "GIF89a more"));
    EXPECT_EQ(world.column(emblem), QStringList{QStringLiteral("GIF89a more.gif")});
    const QString letter = world.write(QStringLiteral("letter.gif"), "Dear Ann");
    EXPECT_TRUE(ErrorOf([&] { editing.set(column, letter); }).contains(QStringLiteral("is not an image")));
    const QString missing = QStringLiteral("no.gif");
    EXPECT_TRUE(ErrorOf([&] { editing.set(column, missing); }).contains(missing));
    EXPECT_EQ(world.column(emblem), QStringList{QStringLiteral("GIF89a more.gif")});
    editing.set(column, QString());
    EXPECT_EQ(world.column(emblem), QStringList{QStringLiteral("-")});
}

TEST(SetupEditing, OnlySavedChangesLast)
{
    SetupWorld world;
    const QString title = QStringLiteral("SiteTitle");
    const auto stored = [&] { return LoadSetup(world.connection(), setupName).value().siteTitle; };
    {
        SetupEditing editing(world.connection(), world.own, setupName);
        editing.set(title, QStringLiteral("saved"));
        ASSERT_TRUE(editing.save());
        editing.set(title, QStringLiteral("cancelled"));
        world.talk.expect(QStringLiteral("You are about to lose all changes"), Button::No);
        EXPECT_FALSE(editing.cancel());
        EXPECT_EQ(stored(), QStringLiteral("cancelled"));
        world.talk.expect(QStringLiteral("You are about to lose all changes"), Button::Yes);
        EXPECT_TRUE(editing.cancel());
        EXPECT_EQ(stored(), QStringLiteral("saved"));
    }
    SetupEditing(world.connection(), world.own, setupName).set(title, QStringLiteral("forgotten"));
    EXPECT_EQ(stored(), QStringLiteral("saved"));
    EXPECT_FALSE(ErrorOf([&] { SetupEditing(world.connection(), world.own, QStringLiteral("x")); }).isEmpty());
}

TEST_F(SetupEditingTest, EachFailureHasItsPageAndItsMessage)
{
    const std::tuple<const char*, WizardPage, const char*> cases[] = {
        {"UPDATE WebSiteInfo SET HomePageName = ''", WizardPage::Step1,
         "The homepage filename cannot be empty. Please press OK and supply a non-empty filename."},
        {"DELETE FROM TreeHeads", WizardPage::DisplayOptions,
         "You have not yet defined any tree to build. Please press OK and Add a tree."},
        {"UPDATE TreeHeads SET TreeHeadName = ''", WizardPage::DisplayOptions,
         "You have not yet selected the tree head for at least one tree. Please press OK, and Edit or Delete that tree "
         "definion."},
        {"UPDATE WebSiteInfo SET MaxGenOnPage = 1", WizardPage::General,
         "The maximum number of generations on a page cannot be less than 2 (we recommend 4 or 5). Please press OK, go "
         "to General tab and select a new value."},
    };
    world.execute("UPDATE TreeHeads SET TreeHeadId = 1, TreeHeadName = 'Windsor'");
    world.execute("UPDATE WebSiteInfo SET MaxGenOnPage = 2");
    EXPECT_FALSE(CheckSetup(editing.setup()));
    for (const auto& [spoil, page, text] : cases) {
        const Transaction undone(world.connection());
        world.execute(spoil);
        const std::optional<Message> failure = CheckSetup(editing.setup());
        ASSERT_TRUE(failure) << text;
        EXPECT_EQ(failure->text, QString::fromLatin1(text));
        EXPECT_EQ(failure->icon, Icon::Warning);
        world.talk.expect(failure->title.isEmpty() ? failure->text : failure->title);
        EXPECT_FALSE(editing.leavePage(page));
        EXPECT_TRUE(editing.leavePage(WizardPage::FirstPage));
    }
}

TEST_F(SetupEditingTest, FirstTreeFillsTheHeadlessOneAndLaterTreesAreAdded)
{
    trees.addOrFillFirst();
    world.talk.expect(QStringLiteral("The index of names does not exist. It will be generated"));
    EXPECT_FALSE(trees.setHead(1));
    world.addIndividuals();
    EXPECT_FALSE(ErrorOf([&] { trees.setHead(99); }).isEmpty());
    ASSERT_TRUE(trees.setHead(1));
    ASSERT_TRUE(trees.apply());
    EXPECT_FALSE(trees.edited());

    trees.addOrFillFirst();
    ASSERT_TRUE(trees.setHead(2));
    trees.setDisplay(QStringLiteral("collapsitree"));
    trees.setIcon(2);
    EXPECT_FALSE(ErrorOf([&] { trees.setDisplay(QStringLiteral("Fan")); }).isEmpty());
    for (const int icon : {-1, 0, 3, 100}) {
        EXPECT_FALSE(ErrorOf([&] { trees.setIcon(icon); }).isEmpty()) << icon;
    }
    EXPECT_TRUE(editing.leavePage(WizardPage::DisplayOptions)) << "applies the tree first";
    EXPECT_EQ(world.column(QStringLiteral("SELECT TreeHeadId || '|' || TreeHeadName || '|' || GenDisplayType || '|' ||"
                                          " IconNo FROM TreeHeads ORDER BY TreeNumber")),
              (QStringList{QStringLiteral("1|Windsor, Princess Anne II|Outline|10"),
                           QStringLiteral("2|O'Hara,   |CollapsiTree|2")}));
}

TEST_F(SetupEditingTest, ApplyWithoutAHeadTellsAndStaysWithTheTree)
{
    trees.add();
    trees.setIcon(2);
    world.talk.expect(QStringLiteral("No Tree Head")).expect(QStringLiteral("No Tree Head"));
    EXPECT_FALSE(trees.apply());
    EXPECT_TRUE(trees.edited());
    EXPECT_FALSE(editing.leavePage(WizardPage::DisplayOptions));
    EXPECT_EQ(trees.definitions().back().icon, 2);
    EXPECT_EQ(trees.definitions().back().display, QStringLiteral("Outline"));
}

TEST_F(SetupEditingTest, TheLastDefinitionCannotBeDeleted)
{
    trees.add();
    const int first = trees.definitions().front().number;
    const int second = trees.definitions().back().number;
    world.talk.expect(QStringLiteral("Deleting family tree"), Button::No);
    EXPECT_FALSE(trees.remove(first));
    world.talk.expect(QStringLiteral("Deleting family tree"), Button::Yes);
    EXPECT_TRUE(trees.remove(first));
    world.talk.expect(QStringLiteral("You cannot delete the last remaining family tree definition."));
    EXPECT_FALSE(trees.remove(second));
    EXPECT_FALSE(ErrorOf([&] { trees.remove(first); }).isEmpty());
    EXPECT_EQ(trees.definitions().size(), 1U);
}

TEST_F(SetupEditingTest, FindsTheFirstPageOfFinishedPages)
{
    EXPECT_EQ(SetupsToView(world.connection(), world.talk), QStringList{setupName});
    editing.set(QStringLiteral("WebPageFolder"), world.path(QStringLiteral("site")));
    world.talk.expect(QStringLiteral("Your web pages are not yet created.  To create them, use"));
    EXPECT_FALSE(FindPagesToView(world.connection(), setupName, world.talk));
    QDir().mkpath(world.path(QStringLiteral("site")));
    const QString page = world.write(QStringLiteral("site/index.html"), "<html>");
    EXPECT_EQ(FindPagesToView(world.connection(), setupName, world.talk), std::optional<QString>(page));

    world.execute("DELETE FROM WebSiteInfo");
    world.talk.expect(QStringLiteral("No web site setup is currently defined."));
    EXPECT_EQ(SetupsToView(world.connection(), world.talk), QStringList());
}

} // namespace stemwright::test
