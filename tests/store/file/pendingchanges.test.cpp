// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/pendingchanges.h"

#include "base/error.h"
#include "support/testworld.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace stemwright::test
{

namespace
{

const QString title = "UPDATE WebSiteInfo SET SiteTitle = '%1'";
const QString large = "UPDATE WebSiteInfo SET EmblemPicture = zeroblob(1000000)";

Message Failed(const QString& reason)
{
    return {"Not saved", reason};
}

/// While it lives, no file of this process grows beyond the present size of one.
class FullDisk
{
public:
    explicit FullDisk(const QString& path) : m_atLimit(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = static_cast<rlim_t>(QFileInfo(path).size());
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }

    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_atLimit);
    }

private:
    void (*m_atLimit)(int);
    rlimit m_before{};
};

class PendingChangesTest : public testing::Test
{
protected:
    void make(const QString& sql)
    {
        changes.make([this, &sql] { world.execute(sql); });
    }

    bool save() { return changes.save(world.talk, Failed); }

    /// The first setup and the trees.
    QStringList shown()
    {
        return world.column("SELECT SiteTitle, length(EmblemPicture) FROM WebSiteInfo") +
               world.column("SELECT TreeNumber, IconNo FROM TreeHeads ORDER BY TreeNumber");
    }

    /// What the file holds once everything that was not saved is undone.
    QStringList lasting()
    {
        world.talk.expect("Undo?", Button::Yes);
        EXPECT_TRUE(changes.cancel(world.talk, {"Undo?", {}, Icon::Warning, {Button::Yes, Button::No}}));
        EXPECT_FALSE(changes.any());
        return shown();
    }

    TestWorld world;
    FamilyFile& file = world.newFamilyFile();
    PendingChanges changes{file.connection(), {"WebSiteInfo", "TreeHeads"}};
    const QStringList before = shown();
    const QStringList changed = {"kept|1000000", "1|10", "7|3"};
};

} // namespace

TEST_F(PendingChangesTest, ChangesOutlastASavingThatFails)
{
    for (const bool isSavedThen : {false, true}) {
        make(title.arg("kept"));
        make(large);
        make("INSERT INTO TreeHeads (TreeNumber, IconNo) VALUES (7, 3)");
        {
            const FullDisk disk(file.path());
            world.talk.expect("Not saved").expect("Not saved");
            EXPECT_FALSE(save());
            EXPECT_EQ(shown(), changed);
            EXPECT_FALSE(save()) << "still";
        }
        EXPECT_TRUE(world.talk.shown().back().text.contains("not lost")) << world.talk.shown().back().text;
        EXPECT_EQ(shown(), changed);
        EXPECT_TRUE(changes.any());
        if (isSavedThen) {
            EXPECT_TRUE(save());
        }
        EXPECT_EQ(lasting(), isSavedThen ? changed : before);
    }
}

TEST_F(PendingChangesTest, ChangesOutlastAnotherThatFails)
{
    make(title.arg("kept"));
    const int pages = world.column("PRAGMA page_count").front().toInt();
    world.column(QString("PRAGMA max_page_count = %1").arg(pages + 1));
    EXPECT_THROW(make(large), SQLite::Exception);
    EXPECT_TRUE(file.connection().inTransaction()) << "what comes next can be undone as well";
    EXPECT_EQ(shown().front().section(u'|', 0, 0), "kept");
    world.column(QString("PRAGMA max_page_count = %1").arg(pages + 1000));
    make(large);
    EXPECT_TRUE(save());
    EXPECT_EQ(lasting().front(), "kept|1000000");
}

TEST_F(PendingChangesTest, WhatIsSavedIsSavedThoughNothingCanBeChangedAnyMore)
{
    make(title.arg("kept"));
    EXPECT_TRUE(save());
    EXPECT_FALSE(changes.any());
    ASSERT_TRUE(QFile::rename(file.path(), world.path("elsewhere.kvf")));
    EXPECT_THROW(make(title.arg("gone")), Error);
    EXPECT_FALSE(changes.any());
    EXPECT_TRUE(save());
    EXPECT_EQ(shown().front().section(u'|', 0, 0), "kept");
}

} // namespace stemwright::test
