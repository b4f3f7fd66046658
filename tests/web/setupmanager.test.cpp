// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupmanager.h"

#include "web/setup/itemselection.h"
#include "web/setup/setupediting.h"
#include "web/setupworld.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace stemwright::test
{

namespace
{

QString Names(const QString& table)
{
    return QString("SELECT quote(SetupName) FROM %1 ORDER BY rowid").arg(table);
}

/// All that the family file says about setups, to see that a refused action changed nothing.
QStringList Everything(SetupWorld& world)
{
    return world.column(Names("WebSiteInfo")) + world.column(Names("SelectedItems")) + world.column(Names("TreeHeads"));
}

class SetupManagerTest : public testing::Test
{
protected:
    SetupWorld world;
    SetupManager manager{world.connection(), world.environment};
};

} // namespace

TEST_F(SetupManagerTest, NewSetupHasTheDefaultsUnderItsName)
{
    EXPECT_EQ(manager.selected(), "Default");
    ASSERT_TRUE(manager.create(" Anne's line "));
    EXPECT_EQ(manager.selected(), "Anne's line");
    EXPECT_EQ(manager.wizardMode(), WizardMode::New);
    EXPECT_EQ(manager.names().size(), 2);

    const auto setup = LoadSetup(world.connection(), "ANNE'S LINE  ").value();
    EXPECT_TRUE(setup.folder.endsWith("/fampages/Anne's line"));
    EXPECT_EQ(std::tuple(setup.maxGenerationsOnPage, setup.emblemFileType, setup.trees.size(), setup.items.size()),
              std::tuple(4, "gif", 1U, 5U));

    manager.select("default");
    EXPECT_EQ(manager.selected(), "Default");
    EXPECT_EQ(manager.wizardMode(), WizardMode::Edit);
}

TEST_F(SetupManagerTest, UnusableNamesAreRefusedAndChangeNothing)
{
    const QString tooLong(255, u'x');
    const std::pair<const char*, QStringList> cases[] = {
        {"No Setup Name", {QString(), "  "}},
        {"Duplicate setup name", {"DEFAULT", "Default  ", "müller"}},
        {"Web Site Setup", {"..", "a/../b", "a\\", "a\\Graphics", "a\nb", tooLong}}};
    ASSERT_TRUE(manager.create("MÜLLER"));
    const QStringList before = Everything(world);
    for (const auto& [title, names] : cases) {
        for (const QString& name : names) {
            SCOPED_TRACE(name.toStdString());
            const QString expected = title;
            world.talk.expect(expected).expect(expected).expect(expected);
            EXPECT_FALSE(manager.create(name));
            EXPECT_FALSE(manager.clone("Default", name));
            EXPECT_FALSE(manager.rename("Default", name));
            EXPECT_EQ(Everything(world), before);
        }
    }
    EXPECT_EQ(world.talk.shown()[6].text, "You have already a setup named \"DEFAULT\".\n\nPlease select another name.");
}

TEST(SetupManager, FolderOfCloneStandsBesideItsSource)
{
    for (const QStringList& row : TestTable("web/clonefolders.txt")) {
        EXPECT_EQ(FolderOfClone(row[0], "New"), row[1]);
    }
}

TEST_F(SetupManagerTest, CloneCopiesEverythingButNameFolderAndTreeNumber)
{
    world.addIndividuals();
    world.execute(
        "ALTER TABLE WebSiteInfo ADD COLUMN Later VARCHAR(255);"
        "UPDATE WebSiteInfo SET Later = 'kept', WebPageFolder = '/sites/fampages/Default', MaxPrivacyAge = 77;"
        "UPDATE TreeHeads SET TreeHeadId = 2, TreeHeadName = 'O''Hara', GenDisplayType = 'CollapsiTree';"
        "UPDATE SelectedItems SET SetupName = 'Default ' WHERE rowid > 2");
    SetupManager later(world.connection(), world.environment);
    ASSERT_TRUE(later.clone("default", "O'Hara"));

    EXPECT_EQ(world.column("SELECT Later || MaxPrivacyAge || WebPageFolder || EmblemPicture FROM"
                           " WebSiteInfo WHERE SetupName = 'O''Hara'"),
              QStringList{"kept77/sites/fampages/O'HaraGIF89a emblem"});
    const auto source = LoadSetup(world.connection(), "Default");
    const auto clone = LoadSetup(world.connection(), "O'Hara");
    ASSERT_TRUE(source && clone);
    EXPECT_EQ(clone->items, source->items);
    ASSERT_EQ(clone->trees.size(), 1U);
    EXPECT_EQ(clone->trees.front().headId, std::optional<int>(2));
    EXPECT_EQ(clone->trees.front().display, "CollapsiTree");
    EXPECT_NE(clone->trees.front().number, source->trees.front().number);

    world.talk.expect("Web Site Setup");
    EXPECT_FALSE(later.clone("Nobody", "New"));
}

TEST_F(SetupManagerTest, RenameLeavesABlankAfterTheNameOfItemsAndTrees)
{
    world.talk.expectInput("Renaming Setup", std::nullopt);
    EXPECT_FALSE(manager.rename("Default"));
    world.talk.expectInput("Renaming Setup", "'; DROP TABLE Indi; --");
    ASSERT_TRUE(manager.rename("Default"));
    EXPECT_EQ(manager.selected(), "'; DROP TABLE Indi; --");
    EXPECT_EQ(world.column(Names("WebSiteInfo")), QStringList{"'''; DROP TABLE Indi; --'"});
    EXPECT_EQ(world.column(Names("TreeHeads")), QStringList{"'''; DROP TABLE Indi; -- '"});
    EXPECT_TRUE(world.connection().hasTable(u"Indi"));

    const auto setup = LoadSetup(world.connection(), manager.selected()).value();
    EXPECT_EQ(std::tuple(setup.items.size(), setup.trees.size()), std::tuple(5U, 1U));
}

TEST_F(SetupManagerTest, RowsOfARenamedSetupFollowItsNextNameAndItsEnd)
{
    ASSERT_TRUE(manager.create("Other"));
    ASSERT_TRUE(manager.rename("Default", "Second"));
    ASSERT_TRUE(manager.rename("second", "Third"));
    EXPECT_EQ(world.column(Names("TreeHeads")), (QStringList{"'Third '", "'Other'"}));
    world.talk.expect("Confirm Setup Delete", Button::Yes);
    ASSERT_TRUE(manager.remove("Third"));
    EXPECT_EQ(Everything(world), QStringList(7, "'Other'"));
}

TEST_F(SetupManagerTest, RowsBelongToTheSetupWhateverTheCaseOfItsName)
{
    ASSERT_TRUE(manager.rename("Default", "Müller"));
    world.execute("UPDATE SelectedItems SET SetupName = 'MÜLLER '; UPDATE TreeHeads SET SetupName = 'mÜLLER'");
    ItemSelection(world.connection(), world.talk, "Müller").save();
    EXPECT_EQ(world.connection().countRows("SelectedItems"), 5);
    ASSERT_TRUE(manager.clone("Müller", "Clone"));
    const auto clone = LoadSetup(world.connection(), "Clone").value();
    EXPECT_EQ(std::tuple(clone.items.size(), clone.trees.size()), std::tuple(5U, 1U));
    world.talk.expect("Confirm Setup Delete", Button::Yes);
    ASSERT_TRUE(manager.remove("Müller"));
    EXPECT_EQ(Everything(world), QStringList(7, "'Clone'"));
}

TEST_F(SetupManagerTest, WhatFailsInTheEndLeavesTheSelection)
{
    ASSERT_TRUE(manager.create("Other"));
    manager.select("Other");
    const QStringList before = Everything(world);
    sqlite3_commit_hook(
        world.connection().engine().getHandle(), [](void*) { return 1; }, nullptr);
    const QString failed = "Web Site Setup";
    world.talk.expect(failed).expect(failed).expect("Confirm Setup Delete", Button::Yes).expect(failed);
    EXPECT_FALSE(manager.create("New"));
    EXPECT_FALSE(manager.rename("Default", "New"));
    EXPECT_FALSE(manager.remove("Other"));
    EXPECT_EQ(manager.selected(), "Other");
    EXPECT_EQ(manager.wizardMode(), WizardMode::Edit);
    EXPECT_EQ(Everything(world), before);
}

TEST_F(SetupManagerTest, DeleteAsksAndSelectsTheNextSetup)
{
    ASSERT_TRUE(manager.create("A"));
    ASSERT_TRUE(manager.create("Z's"));
    const QStringList before = Everything(world);
    world.talk.expect("Confirm Setup Delete", Button::No);
    EXPECT_FALSE(manager.remove("Default"));
    EXPECT_EQ(world.talk.shown().back().preset, Button::No);
    EXPECT_EQ(Everything(world), before);
    manager.select("Default");
    for (const char* next : {"Z's", "A", ""}) {
        world.talk.expect("Confirm Setup Delete", Button::Yes);
        EXPECT_TRUE(manager.remove(manager.selected()));
        EXPECT_EQ(manager.selected(), next);
    }
    EXPECT_EQ(Everything(world), QStringList());
}

} // namespace stemwright::test
