// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/pageassignment.h"

#include "support/familybuilder.h"
#include "support/testworld.h"
#include "web/run/ancestorchain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class PageAssignmentTest : public testing::Test
{
protected:
    /// The entries of the walk from person 1, as "generation:id" with "+" for a spouse, "=" for a duplicate and the
    /// page's owner after "@".
    std::string walk(const WalkLimits& limits, ProtectedPersons handling = ProtectedPersons::Shown,
                     decltype(TreeWalk::ofDescendants) walker = TreeWalk::ofDescendants)
    {
        const FamilyTree tree = FamilyTree::load(world.file.connection());
        const SiteTexts texts = SiteTexts::load(world.file.connection(), tree, {});
        const Privacy privacy(tree, texts, handling, 90, 2026);
        const TreeWalk walked = walker(tree, privacy, *tree.findIndividual(1), limits);
        std::string text;
        for (const TreeEntry& entry : walked.entries()) {
            text += text.empty() ? "" : " ";
            text += std::to_string(entry.generation) + (entry.kind == EntryKind::Spouse ? "+" : ":");
            text += entry.person == nowhere ? "?" : std::to_string(tree.individualId(entry.person));
            text += entry.isDuplicate ? "=" : "";
            text += '@' + std::to_string(tree.individualId(walked.entries()[entry.page].person));
        }
        return text;
    }

    TestWorld world;
    FamilyBuilder build{world.newFamilyFile().connection()};
};

} // namespace

TEST_F(PageAssignmentTest, GenerationsArePutOnPages)
{
    build.persons(6);
    build.family(1, 1, 0, {2}).family(2, 2, 0, {3, 6}).family(3, 3, 0, {4}).family(4, 4, 0, {5});
    EXPECT_EQ(walk({.generationsOnPage = 2}), "1:1@1 1+?@1 2:2@1 2+?@1 3:3@3 3+?@3 4:4@3 4+?@3 5:5@5 3:6@6");
    EXPECT_EQ(walk({.generationsOnPage = 1}), "1:1@1 1+?@1 2:2@1 2+?@1 3:3@3 3+?@3 4:4@3 4+?@3 5:5@5 3:6@6");
    EXPECT_EQ(walk({.generationsOnPage = 3, .totalGenerations = 3}), "1:1@1 1+?@1 2:2@1 2+?@1 3:3@1 3+?@1 3:6@1");
    EXPECT_EQ(walk({.totalGenerations = 1}), "1:1@1 1+?@1");
}

TEST_F(PageAssignmentTest, WhoIsMetTwiceIsWrittenOnce)
{
    build.persons(8);
    // 4 and 5 are cousins and have 6; 5 has 8 with 7.
    build.family(1, 1, 0, {2, 3}).family(2, 2, 0, {4}).family(3, 3, 0, {5}).family(4, 4, 5, {6}).family(5, 7, 5, {8});
    EXPECT_EQ(walk({}), "1:1@1 1+?@1 2:2@1 2+?@1 3:4@1 3+5=@1 4:6@1 2:3@1 2+?@1 3:5@1 3+4=@1 4:6=@1 3+7@1 4:8@1");
    // A duplicate gets no page of its own: the main entry may own the page with that name.
    EXPECT_EQ(walk({.generationsOnPage = 3}),
              "1:1@1 1+?@1 2:2@1 2+?@1 3:4@1 3+5=@1 4:6@6 2:3@1 2+?@1 3:5@1 3+4=@1 4:6=@1 3+7@1 4:8@8");
}

TEST_F(PageAssignmentTest, OwnAncestorEndsTheWalk)
{
    build.persons(3);
    build.family(1, 1, 0, {2}).family(2, 2, 0, {1, 3}).family(3, 3, 3, {3});
    EXPECT_EQ(walk({}), "1:1@1 1+?@1 2:2@1 2+?@1 3:1=@1 3+?@1 3:3@1 3+?@1 4:3=@1 4+?@1");
}

TEST_F(PageAssignmentTest, HiddenPersonsAreLeftOutWithTheirFamilies)
{
    build.persons(7);
    build.run("UPDATE Indi SET BIRT_Date = '1990' WHERE Id IN (1, 3, 4)");
    // The head is written all the same; spouse 3 goes with child 5, child 4 with child 6.
    build.family(1, 1, 2, {4, 7}).family(2, 1, 3, {5}).family(3, 4, 0, {6});
    build.run("UPDATE Indi SET DEAT_Place = '' WHERE Id = 7");
    EXPECT_EQ(walk({}, ProtectedPersons::Hidden), "1:1@1 1+2@1 2:7@1");
    EXPECT_EQ(walk({}), "1:1@1 1+2@1 2:4@1 2+?@1 3:6@1 2:7@1 1+3@1 2:5@1");
}

TEST_F(PageAssignmentTest, DescendantsOfHiddenPersonsWhoMayLiveAreLeftOut)
{
    build.persons(9);
    // 3 is living; her child 2 marries 1 and is the parent of 4, 5 the child of 4. 6 and 7 are the head's without her.
    build.family(1, 0, 3, {2}).family(2, 1, 2, {4}).family(3, 4, 0, {5}).family(4, 1, 6, {7});
    build.run("UPDATE Indi SET BIRT_Date = '1990' WHERE Id = 3");

    struct Case {
        const char* column;
        const char* value;
        const char* descendants;
        const char* ancestors;
    };

    for (const auto& [column, value, descendants, ancestors] :
         {Case{"BIRT_Date", "NULL", "1:1@1 1+6@1 2:7@1", "1:1@1"},
          Case{"BIRT_Date", "'about 12 May'", "1:1@1 1+6@1 2:7@1", "1:1@1"},
          Case{"BIRT_Date", "'1850'", "1:1@1 1+2@1 1+6@1 2:7@1", "1:1@1 2:2@1"},
          Case{"DEAT_Date", "'2001'", "1:1@1 1+2@1 1+6@1 2:7@1", "1:1@1 2:2@1"},
          Case{"DEAT_Place", "''", "1:1@1 1+2@1 1+6@1 2:7@1", "1:1@1 2:2@1"}}) {
        build.run("UPDATE Indi SET BIRT_Date = NULL, DEAT_Date = NULL, DEAT_Place = NULL WHERE Id = 2");
        build.run(QString("UPDATE Indi SET %1 = %2 WHERE Id = 2").arg(column, value));
        EXPECT_EQ(walk({}, ProtectedPersons::Hidden), descendants) << column << value;
        // Where 1 is the head as the child of 2, he stays whatever is known of him.
        build.run("UPDATE Indi SET FAMC = 2 WHERE Id = 1");
        EXPECT_EQ(walk({}, ProtectedPersons::Hidden, TreeWalk::ofAncestors), ancestors) << column << value;
        build.run("UPDATE Indi SET FAMC = NULL WHERE Id = 1");
    }
}

TEST_F(PageAssignmentTest, AncestorsAreMetGenerationByGeneration)
{
    build.persons(9);
    // 8 and 9 are the parents of 4 and of 3's father 6, so that they are nearer through 2; 5 is his own ancestor.
    build.family(1, 2, 3, {1}).family(2, 4, 5, {2}).family(3, 6, 0, {3}).family(4, 8, 9, {4, 6}).family(5, 0, 5, {5});
    const auto ancestors = [this](const WalkLimits& limits, ProtectedPersons handling = ProtectedPersons::Shown) {
        return walk(limits, handling, TreeWalk::ofAncestors);
    };
    EXPECT_EQ(ancestors({}), "1:1@1 2:2@1 2:3@1 3:4@1 3:5@1 3:6@1 4:8@1 4:9@1 4:5=@1 4:8=@1 4:9=@1");
    EXPECT_EQ(ancestors({.generationsOnPage = 2}),
              "1:1@1 2:2@1 2:3@1 3:4@4 3:5@5 3:6@6 4:8@4 4:9@4 4:5=@5 4:8=@6 4:9=@6");
    EXPECT_EQ(ancestors({.generationsOnPage = 3, .totalGenerations = 3}), "1:1@1 2:2@1 2:3@1 3:4@1 3:5@1 3:6@1");
    EXPECT_EQ(ancestors({.totalGenerations = 1}), "1:1@1");
    // The head is written all the same; 3 and 4 are left out with those beyond.
    build.run("UPDATE Indi SET BIRT_Date = '1990' WHERE Id IN (1, 3, 4)");
    build.run("UPDATE Indi SET DEAT_Date = '2001' WHERE Id = 2");
    EXPECT_EQ(ancestors({}, ProtectedPersons::Hidden), "1:1@1 2:2@1 3:5@1 4:5=@1");
}

TEST_F(PageAssignmentTest, VeryLongLinesOfDescentAreWalked)
{
    constexpr int last = 40000;
    Transaction transaction(world.file.connection());
    build.run(QString("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1)"
                      " INSERT INTO Indi (Id) SELECT i FROM n")
                  .arg(last));
    build.run("INSERT INTO Fam (Id, HusbandId) SELECT Id, Id FROM Indi;"
              "INSERT INTO Spouse2Fam SELECT Id, Id FROM Indi;"
              "INSERT INTO Fam2Child (FamId, ChildId) SELECT Id - 1, Id FROM Indi WHERE Id > 1");
    const FamilyTree tree = FamilyTree::load(world.file.connection());
    const SiteTexts texts = SiteTexts::load(world.file.connection(), tree, {});
    const Privacy privacy(tree, texts, ProtectedPersons::Shown, 90, 2026);
    const TreeWalk walked =
        TreeWalk::ofDescendants(tree, privacy, 0, {.generationsOnPage = 4, .totalGenerations = 32767});
    ASSERT_EQ(walked.entries().size(), 2U * 32767);
    const auto deepest = static_cast<EntryNumber>(walked.entries().size() - 2);
    EXPECT_LT(AncestorChainOf(walked, deepest).size(), 1000U);
    const std::string text = AncestorChainText(walked, tree, deepest, 255);
    EXPECT_LE(text.size(), 255U);
    EXPECT_TRUE(text.starts_with("32766|32765|")) << text;
    EXPECT_NE(text.back(), '|');
}

} // namespace stemwright::test
