// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/nameindex.h"

#include "index/fullname.h"
#include "support/familybuilder.h"
#include "support/testworld.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

using testing::ElementsAre;

class NameIndexTest : public testing::Test
{
protected:
    std::vector<int> listed() const
    {
        std::vector<int> ids;
        for (std::size_t position = 0; position < index->size(); ++position) {
            ids.push_back(index->id(index->rowAt(position)));
        }
        return ids;
    }

    TestWorld world;
    FamilyBuilder build{world.newFamilyFile().connection()};
    std::optional<NameIndex> index;
};

} // namespace

TEST_F(NameIndexTest, IsNotOpenedWithoutIndividuals)
{
    EXPECT_FALSE(OpenNameIndex(index, world.file.connection()));
    build.run("DROP TABLE Indi");
    EXPECT_FALSE(OpenNameIndex(index, world.file.connection()));
    EXPECT_FALSE(index);
}

TEST_F(NameIndexTest, NamesKeepTheirExactShapeHereAndWhereTheyAreStored)
{
    build.person(1, "John", "Smith", {{"Address", "1 Lane\nYork"}, {"Phone", ""}, {"DEAT_Date", "1901"}});
    build.person(2, "Zoë", "Ćić", {{"Title", "Sir"}, {"Suffix", "Jr."}}).person(3, nullptr, nullptr);
    ASSERT_TRUE(OpenNameIndex(index, world.file.connection()));
    const std::vector<QString> names = {"Smith,  John ", "Ćić, Sir Zoë Jr.", ",   "};
    for (NameRow row = 0; row < names.size(); ++row) {
        EXPECT_EQ(index->fullName(row), names[row]);
        EXPECT_EQ(FullNameOf(world.file.connection(), index->id(row)), names[row]);
    }
    EXPECT_EQ(index->address(0), "1 Lane\nYork");
    EXPECT_EQ(index->phone(0) + index->birthDate(0) + index->deathDate(0), "1901");
    EXPECT_EQ(FullNameOf(world.file.connection(), 4), std::nullopt);

    build.run(QString("UPDATE Indi SET GivenName = '%1' WHERE Id = 1").arg(QString("😀").repeated(250)));
    EXPECT_EQ(StoredFullName(world.file.connection(), 1), "Smith,  " + QString("😀").repeated(247));
}

TEST_F(NameIndexTest, SortsLikeTheFamilyFilesQueriesAndByEachColumn)
{
    build.person(1, "Ann", "eriksson", {{"BIRT_Date", "3 MAY 1900"}}).person(2, "Bo", "Éric", {{"BIRT_Date", "1900"}});
    build.person(3, nullptr, nullptr).person(4, "Ann", "Eriksson", {{"Suffix", "II"}, {"DEAT_Date", "1950"}});
    build.person(5, "Ann", "Erik", {{"Title", "Dr"}}).person(6, "Zoe", "Erik").person(7, "", "");
    ASSERT_TRUE(OpenNameIndex(index, world.file.connection()));
    std::vector<int> queried;
    for (const QString& id : Rows(world.file.connection(), ("SELECT Id FROM Indi ORDER BY Surname COLLATE names,"
                                                            " GivenName COLLATE names, Suffix COLLATE names"))) {
        queried.push_back(id.toInt());
    }
    EXPECT_EQ(listed(), queried);
    EXPECT_THAT(listed(), ElementsAre(3, 7, 2, 5, 6, 1, 4));

    index->sortBy(NameColumn::PersonId);
    EXPECT_THAT(listed(), ElementsAre(1, 2, 3, 4, 5, 6, 7));
    index->sortBy(NameColumn::PersonId);
    EXPECT_THAT(listed(), ElementsAre(7, 6, 5, 4, 3, 2, 1));
    index->sortBy(NameColumn::Name);
    EXPECT_THAT(listed(), ElementsAre(3, 7, 2, 6, 5, 1, 4));
    index->sortBy(NameColumn::BirthDate);
    EXPECT_THAT(listed(), ElementsAre(3, 7, 5, 6, 4, 2, 1));
    index->sortBy(NameColumn::BirthDate);
    EXPECT_THAT(listed(), ElementsAre(1, 2, 3, 7, 5, 6, 4));
    index->sortBy(NameColumn::DeathDate);
    EXPECT_THAT(listed(), ElementsAre(3, 7, 2, 5, 6, 1, 4));
    EXPECT_EQ(index->positionOf(index->rowAt(5)), 5U);
}

} // namespace stemwright::test
