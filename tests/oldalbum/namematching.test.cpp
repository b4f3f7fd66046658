// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/namematching.h"

#include "store/tables/createtables.h"
#include "support/familybuilder.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

class NameMatchingTest : public testing::Test
{
protected:
    NameMatchingTest()
    {
        FamilyBuilder build(world.newFamilyFile().connection());
        build.person(1, "John", "Smith", {{"Title", "Sir"}, {"Suffix", "Jr."}}).person(2, "John", "Smith");
        build.person(3, "Johnny", "Smith").person(4, "Jane", "Smithson").person(5, "Odd", "O'Neil");
        build.person(6, "?", "Smith");
        CreatePreV2IndiTable(world.connection());
        CreatePreV2Pic2PersonTable(world.connection());
        build.run("INSERT INTO AlbumTOC (Title) VALUES ('one'), ('two'), ('three')");
    }

    /// Adds an old name that stands on pictures at places "PICTURE,X,Y".
    void add(const QString& name, const QStringList& places)
    {
        Statement insert = world.connection().prepare("INSERT INTO PreV2Indi (Name) VALUES (?1)");
        insert.bind(1, name).run();
        const qint64 id = world.connection().lastInsertId();
        for (const QString& place : places) {
            const QStringList parts = place.split(u',');
            Statement row = world.connection().prepare("INSERT INTO PreV2Pic2Person VALUES (?1, ?2, ?3, ?4)");
            row.bind(1, parts[0].toInt()).bind(2, id).bind(3, parts[1]).bind(4, parts[2]).run();
        }
    }

    QStringList marks()
    {
        return Rows(world.connection(),
                    "SELECT PicId, PersId, X, Y, Width, Name || '.' FROM Pic2Person ORDER BY rowid");
    }

    TestWorld world;
};

} // namespace

TEST_F(NameMatchingTest, ProposesEverybodyWhoseNameBeginsLikeTheOldOne)
{
    for (const QStringList& row : TestTable("oldalbum/proposals.txt")) {
        world.execute("DELETE FROM PreV2Indi");
        add(row[0], {});
        NameMatching matching(world.connection(), world.talk);
        matching.begin(0);
        QStringList ids;
        for (const NameRow proposal : matching.proposals()) {
            ids << QString::number(matching.individuals().id(proposal));
        }
        EXPECT_EQ(ids.join(u' '), row[1]) << row[0];
        EXPECT_EQ(matching.prompt().startsWith("No matches for " + row[0]), ids.isEmpty());
    }
}

TEST_F(NameMatchingTest, WritesNameByNameAndNothingTwice)
{
    add("Smith, John", {"1,10,20", "2,,"});
    add("Smith", {"1,30,40"});
    add("Murka's kitten", {"1,1,2", "2,3,4", "3,5,6", "9,7,8"});
    add("Tom", {"3,50,60"});
    const auto run = [this] {
        NameMatching matching(world.connection(), world.talk);
        matching.begin(0);
        EXPECT_TRUE(matching.accept(matching.proposals()[0]));
        EXPECT_TRUE(matching.accept(ChosenPerson{2, "Smith,  John "}));
        EXPECT_TRUE(matching.next());
        world.talk.expect("Are you sure", Button::Yes);
        matching.cancel();
        EXPECT_FALSE(matching.isRunning());
    };
    run();
    const QStringList written = {"1|2|10|20|-|Smith, John .", "2|2|||-|Smith, John .", "1|0|1|2|-|Murka's kitten.",
                                 "2|0|3|4|-|Murka's kitten.", "3|0|5|6|-|Murka's kitten."};
    EXPECT_EQ(marks(), written);
    run();
    EXPECT_EQ(marks(), written);

    NameMatching again(world.connection(), world.talk);
    EXPECT_EQ(again.firstUnmarked(), 1);
    EXPECT_EQ(CountUnmarkedNames(world.connection()), 2);
}

TEST_F(NameMatchingTest, TakesNobodyElsesMarkForThatOfAName)
{
    // On the first picture nobody has a place, on the second one somebody.
    add("Smith, John", {"1,,", "2,10,20"});
    add("Smithson", {"1,,"});
    add("Tom", {"1,,", "3,,"});
    const auto unmarkedAfter = [this](const QString& marks) {
        world.execute("DELETE FROM Pic2Person");
        world.execute("INSERT INTO Pic2Person (PicId, PersId, X, Y, Name) VALUES " + marks);
        QStringList names;
        for (const OldName& name : LoadOldNames(world.connection())) {
            names << (name.marked ? QString() : name.name.left(6));
        }
        EXPECT_EQ(CountUnmarkedNames(world.connection()), 3 - names.count(""));
        return names.join(u'|');
    };
    const std::pair<const char*, const char*> cases[] = {
        {"(1, 2, '', '', 'Smith, Jo')", "Smith,|Smiths|Tom"},
        {"(1, 2, '', '', 'Smith, Jo'), (2, 2, '10', '20', 'Smith, Jo')", "Smith,|Smiths|Tom"},
        {"(1, 4, '', '', 'smithson'), (1, 2, NULL, NULL, 'Jo'), (2, 2, '10', '20', 'Jo')", "Smith,||Tom"},
        {"(1, 0, '', '', 'Tom'), (1, 4, '', '', 'Jane'), (1, 2, '', '', 'Jo'), (2, 2, '10', '20', 'Jo')", "||Tom"},
        {"(1, 0, '5', '5', 'Tom'), (3, 0, '', '', 'Tom'), (1, 0, '', '', 'Jane'), (1, 4, '', '', 'Ann')",
         "Smith,|Smiths|"},
        {"(2, 1, '10', '20', 'Smithson'), (1, 1, '7', '7', 'smithson')", "Smith,||Tom"}};
    for (const auto& [marks, unmarked] : cases) {
        EXPECT_EQ(unmarkedAfter(marks), unmarked) << marks;
    }
}

TEST_F(NameMatchingTest, PassesOverANameThatIsNotCancelled)
{
    add("Smith", {"1,1,2"});
    add("", {"2,1,2"});
    add("Tom", {"3,1,2"});
    NameMatching matching(world.connection(), world.talk);
    matching.begin(0);
    world.talk.expect("Are you sure", Button::No);
    matching.cancel();
    EXPECT_EQ(matching.position(), 1);
    EXPECT_TRUE(matching.next());
    world.talk.expect("Name matching is completed");
    EXPECT_TRUE(matching.next());
    EXPECT_FALSE(matching.isRunning());
    EXPECT_EQ(marks(), QStringList{"3|0|1|2|-|Tom."});
}

TEST_F(NameMatchingTest, StaysAtANameThatCannotBeWritten)
{
    add("Tom", {"1,1,2"});
    NameMatching matching(world.connection(), world.talk);
    matching.begin(0);
    world.execute("ALTER TABLE Pic2Person RENAME TO Gone");
    world.talk.expect("Tom was not marked.");
    EXPECT_FALSE(matching.next());
    EXPECT_TRUE(matching.isRunning());
}

} // namespace stemwright::test
