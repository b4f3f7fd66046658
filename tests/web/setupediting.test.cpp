// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupediting.h"

#include "web/setup/backgroundstyles.h"
#include "web/setup/setupviewing.h"
#include "web/setupworld.h"

#include <QtCore/QDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace stemwright::test
{

namespace
{

const QString setupName = "Default";

class SetupEditingTest : public testing::Test
{
protected:
    SetupWorld world;
    SetupEditing editing{world.connection(), world.environment, setupName};
    TreeEditing& trees = editing.trees();
};

} // namespace

TEST_F(SetupEditingTest, TypedValuesAreStoredAsTheirColumnsHoldThemOrRefused)
{
    for (const QStringList& row : TestTable("web/settings.txt")) {
        const QString &column = row[0], &typed = row[1], &expected = row[2];
        SCOPED_TRACE(row.join(u' ').toStdString());
        const QString sql = "SELECT " + column + " FROM WebSiteInfo";
        const bool isRefused = expected == "refused";
        const auto known = std::ranges::find(SetupColumns(), column, &SetupColumn::name);
        const bool hasWords = known != SetupColumns().end() && !known->inWords.isEmpty();
        const QString& subject = hasWords ? known->inWords : column;
        const QStringList stored = isRefused ? world.column(sql) : QStringList{expected};
        EXPECT_EQ(ErrorOf([&] { editing.set(column, typed); }).contains(subject), isRefused);
        EXPECT_EQ(world.column(sql), stored);
        if (!isRefused) {
            editing.set(column, editing.settingText(SetupColumnNamed(column)));
            EXPECT_EQ(world.column(sql), stored) << "typed again as it is shown";
        }
    }
    EXPECT_FALSE(ErrorOf([&] { editing.set("SiteTitle", QString(256, u'x')); }).isEmpty());
    EXPECT_TRUE(ErrorOf([&] { editing.set("SiteTitle", QString("\U0001F600").repeated(255)); }).isEmpty());
    EXPECT_TRUE(ErrorOf([&] { editing.set("Colour", {}); }).contains("CellFg, CellBg"));
}

TEST_F(SetupEditingTest, EmblemIsReadFromAnImageFileOnly)
{
    const QString emblem = "SELECT EmblemPicture || '.' || EmblemFiletype FROM WebSiteInfo";
    const auto set = [&](const QString& file) { editing.set("EmblemPicture", file); };
    set(world.write("arms.GIF", "GIF89a arms"));
    EXPECT_EQ(world.column(emblem), QStringList{"GIF89a arms.GIF"});
    set(world.write("arms.txt", "GIF89a more"));
    EXPECT_TRUE(ErrorOf([&] { set(world.write("letter.gif", "Dear Ann")); }).contains("is not an image"));
    EXPECT_TRUE(ErrorOf([&] { set("no.gif"); }).contains("no.gif"));
    EXPECT_EQ(world.column(emblem), QStringList{"GIF89a more.gif"});
    set(QString());
    EXPECT_EQ(world.column(emblem), QStringList{"-"});
}

TEST(SetupEditing, OnlySavedChangesLast)
{
    SetupWorld world;
    const QString title = "SiteTitle";
    const auto stored = [&] { return LoadSetup(world.connection(), setupName).value().siteTitle; };
    {
        SetupEditing editing(world.connection(), world.environment, setupName);
        editing.set(title, "saved");
        ASSERT_TRUE(editing.save());
        editing.set(title, "cancelled");
        world.talk.expect("You are about to lose all changes", Button::No);
        EXPECT_FALSE(editing.cancel());
        EXPECT_EQ(stored(), "cancelled");
        world.talk.expect("You are about to lose all changes", Button::Yes);
        EXPECT_TRUE(editing.cancel());
        EXPECT_EQ(stored(), "saved");
    }
    SetupEditing(world.connection(), world.environment, setupName).set(title, "forgotten");
    EXPECT_EQ(stored(), "saved");
    EXPECT_FALSE(ErrorOf([&] { SetupEditing(world.connection(), world.environment, "x"); }).isEmpty());
}

TEST_F(SetupEditingTest, EveryKindOfChangeOutlastsASavingThatFails)
{
    const auto everything = [this] {
        return world.column("SELECT SiteTitle, EmblemPicture FROM WebSiteInfo") +
               world.column("SELECT ItemValue FROM SelectedItems") + world.column("SELECT IconNo FROM TreeHeads");
    };
    editing.set("SiteTitle", "kept");
    editing.set("EmblemPicture", world.write("arms.gif", "GIF89a arms"));
    editing.setItems({editing.setup().items.front()});
    trees.add();
    trees.setIcon(2);
    trees.keep();
    const QStringList changed = everything();
    sqlite3* engine = world.connection().engine().getHandle();
    sqlite3_commit_hook(
        engine, [](void*) { return 1; }, nullptr);
    world.talk.expect("Web Site Setup");
    EXPECT_FALSE(editing.save());
    EXPECT_TRUE(editing.edited());
    EXPECT_EQ(everything(), changed);
    sqlite3_commit_hook(engine, nullptr, nullptr);
    EXPECT_TRUE(editing.save());
    EXPECT_FALSE(world.connection().inTransaction());
    EXPECT_EQ(everything(), changed);
}

TEST_F(SetupEditingTest, OnlyRealChangesArePending)
{
    trees.edit(trees.definitions().front().number);
    trees.setIcon(10);
    EXPECT_FALSE(editing.edited());
    EXPECT_TRUE(editing.cancel()) << "asks nothing";
    SetupEditing again(world.connection(), world.environment, setupName);
    again.trees().edit(again.trees().definitions().front().number);
    again.trees().setIcon(2);
    EXPECT_TRUE(again.edited());
    ASSERT_TRUE(again.save()) << "stores the tree being edited, head or not";
    EXPECT_FALSE(again.edited());
    EXPECT_EQ(world.column("SELECT IconNo FROM TreeHeads"), QStringList{"2"});
}

TEST_F(SetupEditingTest, StylesAreThoseOfTheApplicationsFolder)
{
    EXPECT_FALSE(StyleSample(0, world.application));
    QDir().mkpath(world.path("application/BgStyles/Aqua"));
    QDir().mkpath(world.path("application/BgStyles/Empty"));
    for (const char* page : {"tree", "left", "topright", "bottom", "main"}) {
        world.write(QString("application/BgStyles/Aqua/%1.html").arg(page), page);
    }
    EXPECT_EQ(BackgroundStyles(world.application), (QStringList{"OldBook", "Memories", "Aqua"}));
    editing.set("PageStyle", "2");
    EXPECT_TRUE(ErrorOf([&] { editing.set("PageStyle", "3"); }).contains("no background style"));
    EXPECT_TRUE(StyleFolder(2, world.application).endsWith("/BgStyles/Aqua"));
    EXPECT_TRUE(StyleFolder(99, world.application).endsWith("/BgStyles/OldBook"));
}

TEST_F(SetupEditingTest, EachFailureHasItsPageAndItsMessage)
{
    const std::tuple<const char*, WizardPage, const char*> cases[] = {
        {"UPDATE WebSiteInfo SET HomePageName = ''", WizardPage::Step1, "The homepage filename cannot be empty."},
        {"DELETE FROM TreeHeads", WizardPage::DisplayOptions, "You have not yet defined any tree to build."},
        {"UPDATE TreeHeads SET TreeHeadName = ''", WizardPage::DisplayOptions, "You have not yet selected the tree"},
        {"UPDATE WebSiteInfo SET MaxGenOnPage = 1", WizardPage::General, "cannot be less than 2 (we recommend 4 or 5)"},
    };
    world.execute("UPDATE TreeHeads SET TreeHeadId = 1, TreeHeadName = 'Windsor';"
                  "UPDATE WebSiteInfo SET MaxGenOnPage = 2");
    EXPECT_FALSE(CheckSetup(editing.setup()));
    for (const auto& [spoil, page, text] : cases) {
        const Transaction undone(world.connection());
        world.execute(spoil);
        const std::optional<Message> failure = CheckSetup(editing.setup());
        ASSERT_TRUE(failure) << text;
        EXPECT_TRUE(failure->text.contains(text)) << failure->text;
        EXPECT_EQ(failure->icon, Icon::Warning);
        world.talk.expect(failure->title.isEmpty() ? failure->text : failure->title);
        EXPECT_FALSE(editing.leavePage(page));
        EXPECT_TRUE(editing.leavePage(WizardPage::FirstPage));
    }
}

TEST_F(SetupEditingTest, FirstTreeFillsTheHeadlessOneAndLaterTreesAreAdded)
{
    trees.addOrFillFirst();
    world.talk.expect("The index of names does not exist. It will be generated");
    EXPECT_FALSE(trees.setHead(1));
    world.addIndividuals();
    EXPECT_FALSE(ErrorOf([&] { trees.setHead(99); }).isEmpty());
    ASSERT_TRUE(trees.setHead(1));
    ASSERT_TRUE(trees.apply());
    EXPECT_FALSE(trees.edited());

    trees.addOrFillFirst();
    ASSERT_TRUE(trees.setHead(2));
    trees.setDisplay("collapsitree");
    trees.setIcon(2);
    EXPECT_FALSE(ErrorOf([&] { trees.setDisplay("Fan"); }).isEmpty());
    for (const int icon : {-1, 0, 3, 100}) {
        EXPECT_FALSE(ErrorOf([&] { trees.setIcon(icon); }).isEmpty()) << icon;
    }
    EXPECT_TRUE(editing.leavePage(WizardPage::DisplayOptions)) << "applies the tree first";
    EXPECT_EQ(
        world.column("SELECT TreeHeadId, TreeHeadName, GenDisplayType, IconNo FROM TreeHeads ORDER BY TreeNumber"),
        (QStringList{"1|Windsor, Princess Anne II|Outline|10", "2|O'Hara,   |CollapsiTree|2"}));
}

TEST_F(SetupEditingTest, ApplyWithoutAHeadTellsAndStaysWithTheTree)
{
    trees.add();
    trees.setIcon(2);
    world.talk.expect("No Tree Head").expect("No Tree Head");
    EXPECT_FALSE(trees.apply());
    EXPECT_TRUE(trees.edited());
    EXPECT_FALSE(editing.leavePage(WizardPage::DisplayOptions));
    EXPECT_EQ(trees.definitions().back().icon, 2);
    EXPECT_EQ(trees.definitions().back().display, "Outline");
}

TEST_F(SetupEditingTest, TheLastDefinitionCannotBeDeleted)
{
    trees.add();
    const int first = trees.definitions().front().number;
    const int second = trees.definitions().back().number;
    world.talk.expect("Deleting family tree", Button::No);
    EXPECT_FALSE(trees.remove(first));
    world.talk.expect("Deleting family tree", Button::Yes);
    EXPECT_TRUE(trees.remove(first));
    world.talk.expect("You cannot delete the last remaining family tree definition.");
    EXPECT_FALSE(trees.remove(second));
    EXPECT_FALSE(ErrorOf([&] { trees.remove(first); }).isEmpty());
    EXPECT_EQ(trees.definitions().size(), 1U);
}

TEST_F(SetupEditingTest, FindsTheFirstPageOfFinishedPages)
{
    EXPECT_EQ(SetupsToView(world.connection(), world.talk), QStringList{setupName});
    editing.set("WebPageFolder", world.path("site"));
    world.talk.expect("Your web pages are not yet created.  To create them, use");
    EXPECT_FALSE(FindPagesToView(world.connection(), setupName, world.talk));
    QDir().mkpath(world.path("site"));
    const QString page = world.write("site/index.html", "<html>");
    EXPECT_EQ(FindPagesToView(world.connection(), setupName, world.talk), std::optional<QString>(page));

    world.execute("DELETE FROM WebSiteInfo");
    world.talk.expect("No web site setup is currently defined.");
    EXPECT_EQ(SetupsToView(world.connection(), world.talk), QStringList());
}

} // namespace stemwright::test
