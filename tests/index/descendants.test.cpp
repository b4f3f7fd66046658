// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/descendants.h"
#include "support/familybuilder.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class DescendantsTest : public testing::Test
{
protected:
    FamilyTree tree() { return FamilyTree::load(world.file.connection()); }

    /// The id of the individual with the most descendants; 0 when there is none.
    int best()
    {
        const FamilyTree links = tree();
        const std::optional<TreePosition> found = IndividualWithMostDescendants(links);
        return found ? links.individualId(*found) : 0;
    }

    TestWorld world;
    FamilyBuilder build{world.newFamilyFile().connection()};
};

} // namespace

TEST_F(DescendantsTest, EveryDescendantCountsOnceHoweverHeIsReached)
{
    build.persons(6);
    // 3 and 4 are siblings who have a child; the child has two more ways up through a second family of 3.
    build.family(1, 1, 2, {3, 4}).family(2, 3, 4, {5}).family(3, 3, 0, {5, 6});
    const FamilyTree links = tree();
    EXPECT_EQ(CountDescendants(links, *links.findIndividual(1)), 4U);
    EXPECT_EQ(CountDescendants(links, *links.findIndividual(3)), 2U);
    EXPECT_EQ(CountDescendants(links, *links.findIndividual(6)), 0U);
}

TEST_F(DescendantsTest, ManyWaysDownDoNotWinOverManyDescendants)
{
    build.persons(20);
    // 1 has four descendants by eight ways; 10 has five by five ways.
    build.family(1, 1, 0, {2, 3}).family(2, 2, 3, {4}).family(3, 3, 0, {4, 5}).family(4, 4, 0, {5});
    build.family(5, 10, 0, {11, 12, 13, 14, 15});
    EXPECT_EQ(best(), 10);
}

TEST_F(DescendantsTest, EqualsGoByNumberAndCirclesEnd)
{
    EXPECT_EQ(best(), 0);
    build.persons(4);
    EXPECT_EQ(best(), 0);
    build.family(1, 3, 2, {1, 4});
    EXPECT_EQ(best(), 2);
    build.run("DELETE FROM Spouse2Fam; DELETE FROM Fam2Child; DELETE FROM Fam");
    build.family(1, 4, 0, {3}).family(2, 3, 0, {4});
    EXPECT_EQ(best(), 3);
}

} // namespace stemwright::test
