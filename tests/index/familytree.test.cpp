// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/familytree.h"
#include "support/familybuilder.h"
#include "support/testworld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class FamilyTreeTest : public testing::Test
{
protected:
    std::vector<int> idsOf(std::span<const TreePosition> individuals) const
    {
        std::vector<int> ids;
        for (const TreePosition individual : individuals) {
            ids.push_back(tree.individualId(individual));
        }
        return ids;
    }

    TreePosition individual(int id) const { return tree.findIndividual(id).value_or(nowhere); }

    TreePosition family(int id) const { return tree.findFamily(id).value_or(nowhere); }

    void load() { tree = FamilyTree::load(world.file.connection()); }

    TestWorld world;
    FamilyBuilder build{world.newFamilyFile().connection()};
    FamilyTree tree;
};

} // namespace

TEST_F(FamilyTreeTest, LinksKeepTheOrderOfTheirRows)
{
    build.person(30, "C", "").person(10, "A", "").person(20, "B", "").person(40, "D", "");
    build.family(7, 10, 20, {40, 30}).family(5, 10, 0, {});
    build.run("UPDATE Spouse2Fam SET rowid = rowid + 10 WHERE FamId = 7");
    load();
    EXPECT_THAT(idsOf(tree.children(family(7))), ElementsAre(40, 30));
    EXPECT_THAT(idsOf(tree.childrenByParents(family(7))), ElementsAre(30, 40));
    EXPECT_THAT(tree.spouseFamilies(individual(10)), ElementsAre(family(5), family(7)));
    EXPECT_THAT(tree.spouseFamilies(individual(40)), IsEmpty());
    EXPECT_EQ(tree.parentFamily(individual(30)), family(7));
    EXPECT_EQ(tree.parentFamily(individual(10)), nowhere);
    EXPECT_EQ(tree.partner(family(7), individual(10)), individual(20));
    EXPECT_EQ(tree.partner(family(7), individual(20)), individual(10));
    EXPECT_EQ(tree.partner(family(5), individual(10)), nowhere);
}

TEST_F(FamilyTreeTest, LinksToMissingRecordsAreKeptForFamiliesAndDroppedForIndividuals)
{
    build.person(1, "A", "").family(3, 1, 99, {98}).spouse(1, 77).spouse(97, 3);
    build.run("UPDATE Indi SET FAMC = 66 WHERE Id = 1");
    load();
    ASSERT_EQ(tree.spouseFamilies(individual(1)).size(), 2U);
    const TreePosition missing = tree.spouseFamilies(individual(1))[1];
    EXPECT_FALSE(tree.hasRecord(missing));
    EXPECT_EQ(tree.familyId(missing), 77);
    EXPECT_EQ(tree.familyId(tree.parentFamily(individual(1))), 66);
    EXPECT_FALSE(tree.findFamily(77));
    EXPECT_EQ(tree.wife(family(3)), nowhere);
    EXPECT_THAT(tree.children(family(3)), IsEmpty());
}

TEST_F(FamilyTreeTest, RepeatedLinksCountOnce)
{
    build.person(1, "A", "").person(2, "B", "").family(3, 1, 1, {2, 1, 2});
    load();
    EXPECT_THAT(tree.spouseFamilies(individual(1)), ElementsAre(family(3)));
    EXPECT_THAT(idsOf(tree.children(family(3))), ElementsAre(2, 1));
    EXPECT_EQ(tree.partner(family(3), individual(1)), nowhere);
}

} // namespace stemwright::test
