// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setupmanager.h"

#include "web/setupediting.h"
#include "web/setupworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

QString Names(const QString& table)
{
    return QStringLiteral("SELECT quote(SetupName) FROM %1 ORDER BY rowid").arg(table);
}

/// All that the family file says about setups, to see that a refused action changed nothing.
QStringList Everything(SetupWorld& world)
{
    return world.column(Names(QStringLiteral("WebSiteInfo"))) + world.column(Names(QStringLiteral("SelectedItems"))) +
           world.column(Names(QStringLiteral("TreeHeads")));
}

class SetupManagerTest : public testing::Test
{
protected:
    SetupWorld world;
    SetupManager manager{world.connection(), world.own};
};

} // namespace

TEST_F(SetupManagerTest, NewSetupHasTheDefaultsUnderItsName)
{
    EXPECT_EQ(manager.selected(), QStringLiteral("Default"));
    ASSERT_TRUE(manager.create(QStringLiteral(" Anne's line ")));
    EXPECT_EQ(manager.selected(), QStringLiteral("Anne's line"));
    EXPECT_EQ(manager.wizardMode(), WizardMode::New);
    EXPECT_EQ(manager.names().size(), 2);

    const auto setup = LoadSetup(world.connection(), QStringLiteral("ANNE'S LINE  "));
    ASSERT_TRUE(setup);
    EXPECT_TRUE(setup->folder.endsWith(QStringLiteral("/fampages/Anne's line")));
    EXPECT_EQ(setup->maxGenerationsOnPage, 4);
    EXPECT_EQ(setup->emblemFileType, QStringLiteral("gif"));
    ASSERT_EQ(setup->trees.size(), 1U);
    EXPECT_EQ(setup->trees.front().icon, 10);
    EXPECT_EQ(setup->items.size(), 5U);
    EXPECT_EQ(world.column(QStringLiteral("SELECT quote(ItemValue) FROM SelectedItems ORDER BY rowid LIMIT 1")),
              QStringList{QStringLiteral("'Title\tTitle\tn\tYes\t\t\t\t\tIndi'")});

    manager.select(QStringLiteral("default"));
    EXPECT_EQ(manager.selected(), QStringLiteral("Default"));
    EXPECT_EQ(manager.wizardMode(), WizardMode::Edit);
}

TEST_F(SetupManagerTest, UnusableNamesAreRefusedAndChangeNothing)
{
    const QString tooLong(255, u'x');
    const std::pair<const char*, QStringList> cases[] = {
        {"No Setup Name", {QString(), QStringLiteral("  ")}},
        {"Duplicate setup name", {QStringLiteral("DEFAULT"), QStringLiteral("Default  "), QStringLiteral("müller")}},
        {"Web Site Setup",
         {QStringLiteral(".."), QStringLiteral("a/../b"), QStringLiteral("a\\"), QStringLiteral("a\nb"), tooLong}}};
    ASSERT_TRUE(manager.create(QStringLiteral("MÜLLER")));
    const QStringList before = Everything(world);
    for (const auto& [title, names] : cases) {
        for (const QString& name : names) {
            SCOPED_TRACE(name.toStdString());
            const QString expected = QString::fromLatin1(title);
            world.talk.expect(expected).expect(expected).expect(expected);
            EXPECT_FALSE(manager.create(name));
            EXPECT_FALSE(manager.clone(QStringLiteral("Default"), name));
            EXPECT_FALSE(manager.rename(QStringLiteral("Default"), name));
            EXPECT_EQ(Everything(world), before);
        }
    }
    EXPECT_EQ(world.talk.shown()[6].text,
              QStringLiteral("You have already a setup named \"DEFAULT\".\n\nPlease select another name."));
}

TEST(SetupManager, FolderOfCloneStandsBesideItsSource)
{
    const std::pair<const char*, const char*> cases[] = {{"C:\\App\\fampages", "C:\\App\\fampages\\New"},
                                                         {"C:\\App\\fampages\\Old", "C:\\App\\fampages\\New"},
                                                         {"D:\\Site", "D:\\New"},
                                                         {"D:\\", "D:\\New"},
                                                         {"/srv/ann/fampages/", "/srv/ann/fampages/New"},
                                                         {"/srv/ann/fampages/Old", "/srv/ann/fampages/New"},
                                                         {"/Site", "/New"},
                                                         {"/", "/New"}};
    for (const auto& [source, expected] : cases) {
        EXPECT_EQ(FolderOfClone(QString::fromLatin1(source), QStringLiteral("New")), QString::fromLatin1(expected));
    }
}

TEST_F(SetupManagerTest, CloneCopiesEverythingButNameFolderAndTreeNumber)
{
    world.addIndividuals();
    world.execute("ALTER TABLE WebSiteInfo ADD COLUMN Later VARCHAR(255)");
    world.execute(
        "UPDATE WebSiteInfo SET Later = 'kept', WebPageFolder = '/sites/fampages/Default', MaxPrivacyAge = 77");
    world.execute("UPDATE TreeHeads SET TreeHeadId = 2, TreeHeadName = 'O''Hara', GenDisplayType = 'CollapsiTree'");
    world.execute("UPDATE SelectedItems SET SetupName = 'Default ' WHERE rowid > 2");
    SetupManager later(world.connection(), world.own);
    ASSERT_TRUE(later.clone(QStringLiteral("default"), QStringLiteral("O'Hara")));

    EXPECT_EQ(world.column(QStringLiteral("SELECT Later || MaxPrivacyAge || WebPageFolder || EmblemPicture FROM"
                                          " WebSiteInfo WHERE SetupName = 'O''Hara'")),
              QStringList{QStringLiteral("kept77/sites/fampages/O'HaraGIF89a emblem")});
    const auto source = LoadSetup(world.connection(), QStringLiteral("Default"));
    const auto clone = LoadSetup(world.connection(), QStringLiteral("O'Hara"));
    ASSERT_TRUE(source && clone);
    EXPECT_EQ(clone->items, source->items);
    ASSERT_EQ(clone->trees.size(), 1U);
    EXPECT_EQ(clone->trees.front().headId, std::optional<int>(2));
    EXPECT_EQ(clone->trees.front().display, QStringLiteral("CollapsiTree"));
    EXPECT_NE(clone->trees.front().number, source->trees.front().number);

    world.talk.expect(QStringLiteral("Web Site Setup"));
    EXPECT_FALSE(later.clone(QStringLiteral("Nobody"), QStringLiteral("New")));
}

TEST_F(SetupManagerTest, RenameLeavesABlankAfterTheNameOfItemsAndTrees)
{
    world.talk.expectInput(QStringLiteral("Renaming Setup"), std::nullopt);
    EXPECT_FALSE(manager.rename(QStringLiteral("Default")));
    world.talk.expectInput(QStringLiteral("Renaming Setup"), QStringLiteral("'; DROP TABLE Indi; --"));
    ASSERT_TRUE(manager.rename(QStringLiteral("Default")));
    EXPECT_EQ(manager.selected(), QStringLiteral("'; DROP TABLE Indi; --"));
    EXPECT_EQ(world.column(Names(QStringLiteral("WebSiteInfo"))),
              QStringList{QStringLiteral("'''; DROP TABLE Indi; --'")});
    EXPECT_EQ(world.column(Names(QStringLiteral("TreeHeads"))),
              QStringList{QStringLiteral("'''; DROP TABLE Indi; -- '")});
    EXPECT_TRUE(world.connection().hasTable(u"Indi"));

    const auto setup = LoadSetup(world.connection(), manager.selected());
    ASSERT_TRUE(setup);
    EXPECT_EQ(setup->items.size(), 5U);
    EXPECT_EQ(setup->trees.size(), 1U);
}

TEST_F(SetupManagerTest, RowsOfARenamedSetupFollowItsNextNameAndItsEnd)
{
    ASSERT_TRUE(manager.create(QStringLiteral("Other")));
    ASSERT_TRUE(manager.rename(QStringLiteral("Default"), QStringLiteral("Second")));
    ASSERT_TRUE(manager.rename(QStringLiteral("second"), QStringLiteral("Third")));
    EXPECT_EQ(world.column(Names(QStringLiteral("TreeHeads"))),
              (QStringList{QStringLiteral("'Third '"), QStringLiteral("'Other'")}));
    world.talk.expect(QStringLiteral("Confirm Setup Delete"), Button::Yes);
    ASSERT_TRUE(manager.remove(QStringLiteral("Third")));
    EXPECT_EQ(Everything(world), QStringList(7, QStringLiteral("'Other'")));
}

TEST_F(SetupManagerTest, DeleteAsksAndSelectsTheNextSetup)
{
    ASSERT_TRUE(manager.create(QStringLiteral("A")));
    ASSERT_TRUE(manager.create(QStringLiteral("Z's")));
    const QStringList before = Everything(world);
    world.talk.expect(QStringLiteral("Confirm Setup Delete"), Button::No);
    EXPECT_FALSE(manager.remove(QStringLiteral("Default")));
    EXPECT_EQ(world.talk.shown().back().preset, Button::No);
    EXPECT_EQ(Everything(world), before);

    const std::vector<std::pair<QString, QString>> nextAfterDeleting = {
        {QStringLiteral("Default"), QStringLiteral("Z's")},
        {QStringLiteral("Z's"), QStringLiteral("A")},
        {QStringLiteral("A"), QString()}};
    for (const auto& [name, next] : nextAfterDeleting) {
        world.talk.expect(QStringLiteral("Confirm Setup Delete"), Button::Yes);
        EXPECT_TRUE(manager.remove(name));
        EXPECT_EQ(manager.selected(), next);
    }
    EXPECT_EQ(Everything(world), QStringList());
}

} // namespace stemwright::test
