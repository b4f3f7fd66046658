// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/namesearch.h"

#include "support/familybuilder.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class NameSearchTest : public testing::Test
{
protected:
    NameSearchTest()
    {
        FamilyBuilder build(world.newFamilyFile().connection());
        build.person(1, "Ada", "Archer").person(2, "Odd", "O'Brien").person(3, "John", "Smith");
        build.person(4, "John", "Smith", {{"Title", "Sir"}}).person(5, "Mary", "Smith").person(6, "ÉMILE", "Ölund");
        build.person(7, "Max", "[Smith]").person(8, "Per Cent", "100%");
        OpenNameIndex(index, world.file.connection());
        search.emplace(*index);
    }

    int current() const { return search->chosen().id; }

    bool find(const char* text)
    {
        world.talk.expectInput("Find Name", QString(text));
        return search->find(world.talk);
    }

    TestWorld world;
    std::optional<NameIndex> index;
    std::optional<NameSearch> search;
};

} // namespace

TEST_F(NameSearchTest, TypedTextLeadsToTheFirstNameWithThatBeginning)
{
    struct Case {
        const char* typed;
        int id;
    };

    // Before each one the last row, Mary Smith, is current.
    for (const Case& each : std::vector<Case>{{"smith, j", 3},
                                              {"Smith, Sir John", 4},
                                              {"Smith,  John ", 3},
                                              {"Smith, Sir  John", 5},
                                              {"O'Brien", 2},
                                              {"'", 7},
                                              {"", 7},
                                              {"nobody", 5},
                                              {"ölund, émi", 6},
                                              {"o", 2},
                                              {"*mary", 5},
                                              {"s????, mary", 5},
                                              {"[st]mith, m", 5},
                                              {"[smi", 7},
                                              {"10#%", 8},
                                              {"mith", 5}}) {
        search->goTo(index->rowAt(index->size() - 1));
        search->setText(each.typed);
        EXPECT_EQ(search->text(), each.typed);
        EXPECT_EQ(current(), each.id) << each.typed;
    }
}

TEST_F(NameSearchTest, TextFollowsTheRowAndSortingKeepsIt)
{
    search->setText("smith, m");
    index->sortBy(NameColumn::PersonId);
    EXPECT_EQ(search->chosen().name, "Smith,  Mary ");
    search->goTo(index->rowAt(1));
    EXPECT_EQ(search->text(), "O'Brien,  Odd ");
    // The first match is now the first in the order of the numbers.
    search->setText("smith");
    EXPECT_EQ(current(), 3);
}

TEST_F(NameSearchTest, FindNextAndPreviousWalkAndSwitchTheirButtons)
{
    EXPECT_FALSE(search->canFindNext() || search->canFindPrevious());
    ASSERT_TRUE(find("smith, john"));
    EXPECT_EQ(current(), 3);
    EXPECT_EQ(search->text(), "Smith,  John ");
    EXPECT_TRUE(search->canFindNext() && search->canFindPrevious());

    // From here on what begins with the text is exhausted, and what contains it counts.
    ASSERT_TRUE(find("smith"));
    EXPECT_EQ(current(), 3);
    world.talk.expect("No Next Match").expect("No Previous Match");
    std::vector<int> seen;
    while (search->findNext(world.talk)) {
        seen.push_back(current());
    }
    EXPECT_FALSE(search->canFindNext());
    while (search->findPrevious(world.talk)) {
        EXPECT_TRUE(search->canFindNext());
        seen.push_back(current());
    }
    EXPECT_EQ(seen, (std::vector<int>{4, 5, 4, 3, 7}));
    EXPECT_FALSE(search->canFindPrevious());
    EXPECT_TRUE(search->findNext(world.talk));
    EXPECT_TRUE(search->canFindPrevious());
}

TEST_F(NameSearchTest, FindSaysSoWhenThereIsNoMatch)
{
    ASSERT_TRUE(find("Cent"));
    EXPECT_EQ(current(), 8);
    world.talk.expectInput("Find Name", "nobody").expect("No Match");
    EXPECT_FALSE(search->find(world.talk));
    EXPECT_EQ(current(), 8);
    EXPECT_FALSE(search->canFindNext() || search->canFindPrevious());
    EXPECT_FALSE(find(""));
    world.talk.expectInput("Find Name", std::nullopt);
    EXPECT_FALSE(search->find(world.talk));
}

} // namespace stemwright::test
