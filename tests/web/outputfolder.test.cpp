// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/outputfolder.h"

#include "base/error.h"
#include "support/testworld.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class OutputFolderTest : public testing::Test
{
protected:
    OutputFolderTest()
    {
        for (const char* folder : {"home/site", "files", "app/html", "app/fampages/Default", "backups", "out"}) {
            QDir().mkpath(path(folder));
        }
        world.write("files/Family.kvf", "family");
        world.write("backups/Old.ffb", "backup");
        world.write("plain", "file");
    }

    QString path(const char* name) const { return world.path(name); }

    std::optional<OutputFolder> prepare(const QString& folder)
    {
        return PrepareOutputFolder(folder, {path("files/Family.kvf"), path("home"), path("app"), path("app/fampages")},
                                   world.talk);
    }

    bool exists(const char* name) const { return QFileInfo(path(name)).exists(); }

    TestWorld world;
};

} // namespace

TEST_F(OutputFolderTest, RefusesFoldersThatAreNoPlaceForASite)
{
    QFile::link(path("files"), path("linked"));
    const QString holder = QFileInfo(path("x")).path();
    for (const QString& folder : QStringList{{},
                                             "/",
                                             "//tmp/..",
                                             path("home"),
                                             path("home/site/.."),
                                             holder,
                                             path("files"),
                                             path("files/"),
                                             path("linked"),
                                             path("backups"),
                                             path("app"),
                                             path("app/html"),
                                             path("app/new"),
                                             path("plain"),
                                             "site",
                                             "C:\\App\\fampages\\Old",
                                             path("plain/below")}) {
        if (folder == path("plain/below")) {
            world.talk.expect("The output folder").expect("Cannot create folder");
            EXPECT_FALSE(prepare(folder));
        } else {
            EXPECT_THROW(prepare(folder), Error) << folder;
        }
    }
    EXPECT_TRUE(exists("files/Family.kvf"));
    EXPECT_TRUE(exists("backups/Old.ffb"));
}

TEST_F(OutputFolderTest, AcceptsFoldersOfTheirOwn)
{
    for (const char* folder : {"home/site", "app/fampages/Default", "out"}) {
        EXPECT_TRUE(prepare(path(folder))) << folder;
    }
    world.talk.expect("The output folder", Button::Cancel);
    EXPECT_FALSE(prepare(path("files/new/site")));
    world.talk.expect("The output folder");
    EXPECT_TRUE(prepare(path("files/new/site")));
    EXPECT_TRUE(exists("files/new/site"));
}

TEST_F(OutputFolderTest, DeletesItsFilesOnlyAndOnlyAfterAsking)
{
    world.write("out/index.html", "old");
    world.write("out/.htaccess", "kept");
    QDir().mkpath(path("out/graphics"));
    world.write("out/graphics/a.gif", "kept");
    QFile::link(path("plain"), path("out/link.html"));
    QFile::link(path("nowhere"), path("out/broken.html"));
    QFile::link(path("backups"), path("out/folderlink"));
    world.talk.expect("There are already some files", Button::Cancel);
    EXPECT_FALSE(prepare(path("out")));
    EXPECT_TRUE(exists("out/index.html"));
    world.write("out/a.html", "old");
    world.talk.expect("There are already some files");
    const std::optional<OutputFolder> agreed = prepare(path("out"));
    ASSERT_TRUE(agreed);
    EXPECT_TRUE(exists("out/index.html")) << "nothing is deleted yet";
    EXPECT_EQ(agreed->oldFiles.value(0), path("out/index.html")) << "what passes for a site goes first";
    world.write("out/later.html", "not asked about");
    QFile::remove(path("out/a.html"));
    EmptyOutputFolder(*agreed);
    EXPECT_FALSE(exists("out/index.html"));
    EXPECT_FALSE(QFileInfo(path("out/link.html")).isSymLink());
    EXPECT_FALSE(QFileInfo(path("out/broken.html")).isSymLink());
    for (const char* kept : {"out/.htaccess", "out/graphics/a.gif", "out/later.html", "plain", "backups/Old.ffb"}) {
        EXPECT_TRUE(exists(kept)) << kept;
    }
}

TEST_F(OutputFolderTest, WarnsOfFilesThatAreNoPartOfASite)
{
    const auto warning = [this](const char* folder) {
        return WarningOfOutputFolder(path(folder), {path("files/Family.kvf"), path("home"), path("app"), path("x")});
    };
    for (const char* name : {"index.html", "Outline_1_12.html", "PicPage5.html", "Pic5.JPG", "Thumbs_All_1.html",
                             "emblem.gif", "sniffer.js"}) {
        world.write(QString("out/") + name, "of a site");
    }
    EXPECT_EQ(warning("out"), std::nullopt);
    EXPECT_EQ(warning("out/new"), std::nullopt);
    world.write("out/My Pic5.JPG", "of mine");
    EXPECT_TRUE(warning("out").value_or("").contains("no part of a site, My Pic5.JPG for example"));
}

} // namespace stemwright::test
