// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/contactediting.h"

#include "base/error.h"
#include "support/familybuilder.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

TEST(ContactEditing, StoresWhatIsNotEmptyOnce)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    FamilyBuilder(connection).person(1, "Ada", "Archer", {{"Phone", "12"}}).person(2, "Bo", "Berg");
    const QString stored = "SELECT Id || '|' || Email1 || '|' || Email2 || '|' || WebPage FROM WebAddr";

    ContactEditing contact(connection, 1);
    EXPECT_EQ(contact.name() + contact.address() + contact.phone(), "Archer,  Ada 12");
    EXPECT_FALSE(contact.apply());
    EXPECT_EQ(Rows(connection, stored), QStringList());
    contact.setRecord({"a'b@example.org", {}, {}});
    EXPECT_TRUE(contact.apply());
    contact.setRecord({{}, {}, "example.org"});
    EXPECT_TRUE(contact.apply());
    EXPECT_EQ(Rows(connection, stored), QStringList{"1|||example.org"});

    ContactEditing again(connection, 1);
    EXPECT_EQ(again.record().webPage, "example.org");
    again.setRecord({});
    EXPECT_FALSE(again.apply());
    again.setRecord({QString(256, u'a'), {}, {}});
    EXPECT_THROW(again.apply(), Error);
    EXPECT_EQ(Rows(connection, stored), QStringList{"1|||example.org"});
    EXPECT_THROW(ContactEditing(connection, 3), Error);
}

} // namespace stemwright::test
