// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/picturesearch.h"

#include "base/files.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(PictureSearch, FindsFilesWhereTheyStandToday)
{
    TestWorld world;
    ASSERT_TRUE(CreateFolderPath(world.path("Album/Old Pictures")));
    ASSERT_TRUE(CreateFolderPath(world.path("elsewhere")));
    ASSERT_TRUE(CreateFolderPath(world.path("Family")));
    for (const char* name : {"Family/obraz ó.jpg", "Family/Tom.JPG", "Album/Tom.JPG", "Album/Old Pictures/mia.gif",
                             "Album/both.gif", "Album/BOTH.gif", "elsewhere/far.jpg", "Album/far.jpg"}) {
        world.write(name, name);
    }
    PictureSearch search({world.path("Album"), world.path("Family")});
    for (const QStringList& row : TestTable("album/picturesearch.txt")) {
        const QString stored = QString(row[0]).replace("FOLDER", world.path({}));
        EXPECT_EQ(search.find(stored), row[1].isNull() ? "" : world.path(row[1])) << stored;
        EXPECT_EQ(BaseNameOf(stored), row[2]) << stored;
    }
}

} // namespace stemwright::test
