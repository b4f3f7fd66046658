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

const QString initial = QStringLiteral("Initial");
const QString zoo = QStringLiteral("Zoo");

class QueryManagerTest : public testing::Test
{
protected:
    QStringList names() { return manager.names(); }

    /// The query's row without its name, to see that two are alike.
    QString values(const QString& name)
    {
        const PictureQuery query(world.connection, RequireQuery(world.connection, name));
        QString text;
        for (const QString& column : QueryEditing::columns()) {
            text += column + u'=' + query.text(column) + u' ';
        }
        return text;
    }

    QueryWorld world;
    QueryManager manager{world.connection, world.environment};
};

} // namespace

TEST_F(QueryManagerTest, KeepsTheListOfQueries)
{
    EXPECT_EQ(names(), QStringList({QStringLiteral("élan"), initial, zoo}));
    EXPECT_EQ(manager.selected(), initial);
    world.change(QStringLiteral("IndiFilter = -1, IndiId = 3, WithDescs = -1, TitleSort = 2"));

    EXPECT_TRUE(manager.clone(initial, QStringLiteral(" Beach's ")));
    EXPECT_EQ(manager.selected(), QStringLiteral("Beach's"));
    EXPECT_EQ(values(QStringLiteral("beach's")), values(initial));
    EXPECT_TRUE(manager.create(QStringLiteral("New")));
    EXPECT_TRUE(values(QStringLiteral("New")).contains(QStringLiteral("IdSort=1 IdSortOrder=1 PicDateShow=-1")));

    world.talk.expectInput(QStringLiteral("Renaming Query"), QStringLiteral("Newer"));
    EXPECT_TRUE(manager.rename(QStringLiteral("New")));
    EXPECT_EQ(manager.selected(), QStringLiteral("Newer"));

    EXPECT_TRUE(manager.run(QStringLiteral("ZOO")));
    EXPECT_EQ(world.defaultQuery(), zoo);
    EXPECT_EQ(QueryManager(world.connection, world.environment).selected(), zoo);
    world.talk.expect(QStringLiteral("Picture List Query"));
    EXPECT_FALSE(manager.run(QStringLiteral("None")));

    const QString question = QStringLiteral("Confirm Query Delete");
    world.talk.expect(question, Button::No);
    EXPECT_FALSE(manager.remove(zoo));
    const std::pair<QString, QString> deletions[] = {{QStringLiteral("Beach's"), QStringLiteral("élan")},
                                                     {zoo, QStringLiteral("élan")},
                                                     {QStringLiteral("élan"), initial},
                                                     {initial, QStringLiteral("Newer")},
                                                     {QStringLiteral("Newer"), {}}};
    for (const auto& [name, next] : deletions) {
        world.talk.expect(question, Button::Yes);
        EXPECT_TRUE(manager.remove(name));
        EXPECT_EQ(manager.selected(), names().isEmpty() ? QString() : next) << name.toStdString();
    }
}

TEST_F(QueryManagerTest, RefusesNamesWithoutChangingAnything)
{
    const std::pair<const char*, QString> cases[] = {{"No Query Name", QStringLiteral(" ")},
                                                     {"Duplicate query name", QStringLiteral("ÉLAN ")},
                                                     {"Picture List Query", QString(256, u'x')},
                                                     {"Picture List Query", QStringLiteral("a\tb")}};
    const QStringList before = names();
    for (const auto& [title, name] : cases) {
        const QString expected = QString::fromLatin1(title);
        world.talk.expect(expected).expect(expected).expect(expected);
        EXPECT_FALSE(manager.create(name));
        EXPECT_FALSE(manager.clone(zoo, name));
        EXPECT_FALSE(manager.rename(zoo, name));
        EXPECT_EQ(names(), before);
    }
    EXPECT_EQ(world.talk.shown()[3].text,
              QStringLiteral("You have already a query named \"ÉLAN\".\nPlease select another name."));
    world.talk.expect(QStringLiteral("Picture List Query"));
    EXPECT_FALSE(manager.clone(QStringLiteral("None"), QStringLiteral("x")));
}

TEST(QueryEditing, TakesTypedValuesAsTheirColumnsHoldThem)
{
    QueryWorld world;
    QueryEditing editing(world.connection, world.environment, initial);
    const QString failure = QStringLiteral("Picture List Query");

    const std::tuple<const char*, const char*, QString> cases[] = {
        {"idfrom", " 5 ", QStringLiteral("5")},
        {"IdFrom", "five", failure},
        {"IdFrom", "99999999999", failure},
        {"IdFrom", "", {}},
        {"IdShow", "no", QStringLiteral("0")},
        {"WithAncs", "TRUE", QStringLiteral("1")},
        {"WithAncs", "", failure},
        {"Place", "O'Hara's \"barn\"", QStringLiteral("O'Hara's \"barn\"")},
        {"Place", "", {}},
        {"PicDateFrom", "Abt. 12 Mar 1950", QStringLiteral("195003122")},
        {"PicDateTo", "195099999", QStringLiteral("195099999")},
        {"PicDateTo", "195013001", QStringLiteral("Year \"195013001\" is invalid.")},
        {"PicDateTo", "31 Feb 1950", QStringLiteral("Date \"31 Feb 1950\" is invalid.")},
        {"PicDateTo", "195002311", QStringLiteral("Date \"31 Feb 1950\" is invalid.")},
        {"PicDateTo", "999999999", {}},
        {"ModifDateTo", "2026-03-12 14:05", QStringLiteral("2026-03-12T14:05:00")},
        {"ModifDateTo", "31/2/2026", failure},
        {"IndiId", "3", QStringLiteral("3")},
        {"IndiId", "99", failure},
        {"QueryName", "x", failure},
        {"Nothing", "1", failure},
    };
    for (const auto& [column, typed, expected] : cases) {
        SCOPED_TRACE(std::string(column) + '=' + typed);
        const bool refused = expected == failure || expected.contains(QStringLiteral("invalid"));
        if (refused) {
            world.talk.expect(expected);
        }
        const QString name = QString::fromLatin1(column);
        EXPECT_EQ(editing.set(name, QString::fromLatin1(typed)), !refused);
        if (!refused) {
            EXPECT_EQ(editing.valueText(name), expected);
            EXPECT_TRUE(editing.set(name, editing.valueText(name))) << "as shown";
        }
    }
    EXPECT_EQ(editing.dateText(QStringLiteral("PicDateFrom")), QStringLiteral("Abt. 12 Mar 1950"));
    EXPECT_EQ(editing.personName(), QStringLiteral("O'Brien,  Élise Jr."));
    EXPECT_EQ(editing.places(), QStringList({QStringLiteral(""), QStringLiteral("Łódź"), QStringLiteral("Paris")}));
    world.connection.execute(QStringLiteral("DELETE FROM Indi"));
    world.talk.expect(QStringLiteral("The index of names does not exist."));
    EXPECT_FALSE(editing.set(QStringLiteral("IndiId"), QStringLiteral("3")));
}

TEST(QueryEditing, KeepsOnlyWhatIsSaved)
{
    QueryWorld world;
    const QString column = QStringLiteral("TitleContains");
    const auto stored = [&] { return QueryEditing(world.connection, world.environment, zoo).valueText(column); };
    const QString question = QStringLiteral("You are about to lose all changes");
    {
        QueryEditing editing(world.connection, world.environment, zoo);
        EXPECT_TRUE(editing.close()) << "nothing to lose";
        EXPECT_TRUE(editing.set(column, QStringLiteral("lion")));
        EXPECT_TRUE(editing.run());
        EXPECT_EQ(world.defaultQuery(), zoo);
        EXPECT_TRUE(editing.set(column, QStringLiteral("tiger")));
        world.talk.expect(question, Button::No);
        EXPECT_FALSE(editing.close());
        EXPECT_TRUE(editing.edited());
        EXPECT_EQ(editing.valueText(column), QStringLiteral("tiger"));
        world.talk.expect(question, Button::Yes);
        EXPECT_TRUE(editing.close());
    }
    EXPECT_EQ(stored(), QStringLiteral("lion"));
    {
        QueryEditing editing(world.connection, world.environment, zoo);
        EXPECT_TRUE(editing.set(column, QStringLiteral("bear")));
    }
    EXPECT_EQ(stored(), QStringLiteral("lion"));
}

} // namespace stemwright::test
