// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/checkfamilyfile.h"

#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(CheckFamilyFile, TellsFaultsFromWhatIsLivedWith)
{
    for (const QStringList& row : TestTable("store/faults.txt")) {
        TestWorld world;
        world.newFamilyFile();
        world.execute(row[0] + "; PRAGMA ignore_check_constraints = 0");
        const FamilyFileReport report = CheckFamilyFile(world.connection());
        for (const auto& [list, expected] : {std::pair(report.faults, row[1]), std::pair(report.notes, row[2])}) {
            EXPECT_EQ(list.size(), expected.isEmpty() ? 0 : 1) << row[0];
            EXPECT_TRUE(list.join(u'\n').contains(expected)) << row[0] << ": " << list.join(u'\n');
        }
    }
}

} // namespace stemwright::test
