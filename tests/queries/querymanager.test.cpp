// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/querymanager.h"

#include "queries/queryediting.h"
#include "queries/queryworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString initial = "Initial";
const QString zoo = "Zoo";

class QueryManagerTest : public testing::Test
{
protected:
    QStringList names() { return manager.names(); }

    /// The query's row without its name, to see that two are alike.
    QString values(const QString& name)
    {
        const PictureQuery query(world.connection(), RequireQuery(world.connection(), name));
        QString text;
        for (const QString& column : QueryEditing::columns()) {
            text += column + u'=' + query.text(column) + u' ';
        }
        return text;
    }

    QueryWorld world;
    QueryManager manager{world.connection(), world.environment};
};

} // namespace

TEST_F(QueryManagerTest, KeepsTheListOfQueries)
{
    EXPECT_EQ(names(), QStringList({"élan", initial, zoo}));
    EXPECT_EQ(manager.selected(), initial);
    world.change("IndiFilter = -1, IndiId = 3, WithDescs = -1, TitleSort = 2");

    EXPECT_TRUE(manager.clone(initial, " Beach's "));
    EXPECT_EQ(manager.selected(), "Beach's");
    EXPECT_EQ(values("beach's"), values(initial));
    EXPECT_TRUE(manager.create("New"));
    EXPECT_TRUE(values("New").contains("IdSort=1 IdSortOrder=1 PicDateShow=-1"));

    world.talk.expectInput("Renaming Query", "Newer");
    EXPECT_TRUE(manager.rename("New"));
    EXPECT_EQ(manager.selected(), "Newer");

    EXPECT_TRUE(manager.run("ZOO"));
    EXPECT_EQ(world.defaultQuery(), zoo);
    EXPECT_EQ(QueryManager(world.connection(), world.environment).selected(), zoo);
    world.talk.expect("Picture List Query");
    EXPECT_FALSE(manager.run("None"));

    const QString question = "Confirm Query Delete";
    world.talk.expect(question, Button::No);
    EXPECT_FALSE(manager.remove(zoo));
    const std::pair<QString, QString> deletions[] = {
        {"Beach's", "élan"}, {zoo, "élan"}, {"élan", initial}, {initial, "Newer"}, {"Newer", {}}};
    for (const auto& [name, next] : deletions) {
        world.talk.expect(question, Button::Yes);
        EXPECT_TRUE(manager.remove(name));
        EXPECT_EQ(manager.selected(), names().isEmpty() ? QString() : next) << name.toStdString();
    }
}

TEST_F(QueryManagerTest, RefusesNamesWithoutChangingAnything)
{
    const std::pair<const char*, QString> cases[] = {{"No Query Name", " "},
                                                     {"Duplicate query name", "ÉLAN "},
                                                     {"Picture List Query", QString(256, u'x')},
                                                     {"Picture List Query", "a\tb"}};
    const QStringList before = names();
    for (const auto& [title, name] : cases) {
        const QString expected = title;
        world.talk.expect(expected).expect(expected).expect(expected);
        EXPECT_FALSE(manager.create(name));
        EXPECT_FALSE(manager.clone(zoo, name));
        EXPECT_FALSE(manager.rename(zoo, name));
        EXPECT_EQ(names(), before);
    }
    EXPECT_EQ(world.talk.shown()[3].text, "You have already a query named \"ÉLAN\".\nPlease select another name.");
    world.talk.expect("Picture List Query");
    EXPECT_FALSE(manager.clone("None", "x"));
}

TEST(QueryEditing, TakesTypedValuesAsTheirColumnsHoldThem)
{
    QueryWorld world;
    QueryEditing editing(world.connection(), world.environment, initial);
    for (const QStringList& row : TestTable("queries/typedvalues.txt")) {
        SCOPED_TRACE(row[0] + '=' + row[1]);
        const bool refused = !row[3].isEmpty();
        if (refused) {
            world.talk.expect(row[3]);
        }
        EXPECT_EQ(editing.set(row[0], row[1]), !refused);
        if (!refused) {
            EXPECT_EQ(editing.valueText(row[0]), row[2]);
            EXPECT_TRUE(editing.set(row[0], editing.valueText(row[0]))) << "as shown";
        }
    }
    EXPECT_EQ(editing.dateText("PicDateFrom"), "Abt. 12 Mar 1950");
    EXPECT_EQ(editing.personName(), "O'Brien,  Élise Jr.");
    EXPECT_EQ(editing.places(), QStringList({"", "Łódź", "Paris"}));
    world.execute("DELETE FROM Indi");
    world.talk.expect("The index of names does not exist.");
    EXPECT_FALSE(editing.set("IndiId", "3"));
}

TEST(QueryEditing, KeepsOnlyWhatIsSaved)
{
    QueryWorld world;
    const QString column = "TitleContains";
    const auto stored = [&] { return QueryEditing(world.connection(), world.environment, zoo).valueText(column); };
    const QString question = "You are about to lose all changes";
    {
        QueryEditing editing(world.connection(), world.environment, zoo);
        EXPECT_TRUE(editing.close()) << "nothing to lose";
        EXPECT_TRUE(editing.set(column, "lion"));
        EXPECT_TRUE(editing.run());
        EXPECT_EQ(world.defaultQuery(), zoo);
        EXPECT_TRUE(editing.set(column, "tiger"));
        world.talk.expect(question, Button::No);
        EXPECT_FALSE(editing.close());
        EXPECT_TRUE(editing.edited());
        EXPECT_EQ(editing.valueText(column), "tiger");
        world.talk.expect(question, Button::Yes);
        EXPECT_TRUE(editing.close());
    }
    EXPECT_EQ(stored(), "lion");
    {
        QueryEditing editing(world.connection(), world.environment, zoo);
        EXPECT_TRUE(editing.set(column, "bear"));
    }
    EXPECT_EQ(stored(), "lion");
}

} // namespace stemwright::test
