// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(CreateTables, NewFileHoldsSixteenTablesAndItsDefaultRows)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    Statement count = connection.prepare(
        QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'"));
    ASSERT_TRUE(count.step());
    EXPECT_EQ(count.integer(0), 16);
    const std::vector<std::pair<QString, int>> rows = {
        {QStringLiteral("GenInfo"), 1},   {QStringLiteral("PicListQueries"), 1}, {QStringLiteral("WebSiteInfo"), 1},
        {QStringLiteral("TreeHeads"), 1}, {QStringLiteral("SelectedItems"), 5},  {QStringLiteral("Indi"), 0}};
    for (const auto& [table, expected] : rows) {
        EXPECT_EQ(connection.countRows(table), expected) << table.toStdString();
    }
}

} // namespace stemwright::test
