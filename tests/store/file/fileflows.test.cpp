// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/fileflows.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString confirmation = "Family File Creation Confirmation";

QString LastFile(const Settings& settings)
{
    return settings.value(setting::openCreateFamFile, setting::lastFamilyFile);
}

} // namespace

TEST(FileFlows, CreatingAsksBeforeItReplacesAndRemembers)
{
    TestWorld world;
    const QString path = world.path("a b.kvf");
    world.talk.expect(confirmation);
    ASSERT_TRUE(CreateNewFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(LastFile(world.settings), path);
    world.file.connection().execute("INSERT INTO Indi (Id) VALUES (1)");
    world.file.close();

    world.settings.setValue(setting::openCreateFamFile, setting::showNewAlbumConfirm, "DontShow");
    const QString question = path + " already exists.\nDo you want to replace it?";
    world.talk.expect(question, Button::No).expect(question, Button::Yes);
    EXPECT_FALSE(CreateNewFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(world.talk.shown().back().preset, Button::No);
    ASSERT_TRUE(OpenFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(world.file.connection().countRows("Indi"), 1);
    world.file.close();
    EXPECT_TRUE(CreateNewFamilyFile(world.file, path, world.environment));
    EXPECT_EQ(world.file.connection().countRows("Indi"), 0);
}

TEST(FileFlows, OnlyAFileThatOpensIsRemembered)
{
    TestWorld world;
    const QString path = world.newFamilyFile().path();
    world.talk.expect("Cannot open family file");
    EXPECT_FALSE(OpenAlbum(world.file, world.path("missing.kvf"), world.environment));
    EXPECT_TRUE(LastFile(world.settings).isEmpty());
    world.file.close();
    EXPECT_TRUE(OpenAlbum(world.file, path, world.environment));
    EXPECT_EQ(LastFile(world.settings), path);
}

TEST(FileFlows, SavingAsCopiesAndKeepsTheOpenFile)
{
    TestWorld world;
    const QString path = world.newFamilyFile().path();
    const QString target = world.path("copy.kvf");
    EXPECT_TRUE(SaveFamilyFileAs(world.file, target, world.environment));
    EXPECT_EQ(world.file.path(), path);
    world.talk.expect(target, Button::No).expect(target, Button::Yes);
    EXPECT_FALSE(SaveFamilyFileAs(world.file, target, world.environment));
    EXPECT_TRUE(SaveFamilyFileAs(world.file, target, world.environment));
    world.talk.expect("Save Family File As");
    EXPECT_FALSE(SaveFamilyFileAs(world.file, path, world.environment));
    EXPECT_TRUE(world.talk.shown().back().text.contains("the open family file itself"));
    EXPECT_TRUE(OpenFamilyFile(world.file, target, world.environment));
}

} // namespace stemwright::test
