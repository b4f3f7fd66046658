// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/picturetable.h"

#include "base/error.h"
#include "queries/queryworld.h"
#include "queries/relatives.h"
#include "store/engine/jetsql.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QString initial = "Initial";

struct StatementCase {
    QString change;
    QString statement;
    QString outcome;
};

std::vector<StatementCase> ReadCases()
{
    std::vector<StatementCase> cases;
    for (const QString& line : TestDataText("queries/statements.txt").split(u'\n')) {
        if (line.startsWith(u'?')) {
            cases.push_back({line.mid(2), {}, {}});
        } else if (line.startsWith("SELECT")) {
            cases.back().statement = line;
        } else if (line.startsWith(u'=') || line.startsWith(u'!')) {
            cases.back().outcome = line;
        }
    }
    return cases;
}

QString Numbers(const std::vector<int>& ids)
{
    QString text = "=";
    for (const int id : ids) {
        text += " " + QString::number(id);
    }
    return text;
}

/// The pictures that the query's own statement gives when it is run as it stands.
QString RunAsItStands(Connection& connection, const QString& sql)
{
    Statement statement = connection.prepareJet(sql);
    const int column = statement.column(u"PicId");
    std::vector<int> ids;
    while (statement.step()) {
        ids.push_back(statement.integer(column));
    }
    return Numbers(ids);
}

/// How the engine reads the pictures of a list.
QString PlanOf(Connection& connection, const QString& jetSql)
{
    Statement plan = connection.prepare("EXPLAIN QUERY PLAN " + TranslateJetSql(jetSql));
    plan.step();
    return plan.text(3);
}

} // namespace

TEST(PictureTable, ListsWhatTheStatementOfTheQuerySelectsWithoutReadingPictures)
{
    QueryWorld world;
    const std::vector<StatementCase> cases = ReadCases();
    ASSERT_GT(cases.size(), 20U);
    for (const StatementCase& tested : cases) {
        SCOPED_TRACE(tested.change.toStdString());
        const Transaction undoneAfterwards(world.connection());
        if (!tested.change.isEmpty()) {
            world.change(tested.change);
        }
        if (!tested.statement.isNull()) {
            EXPECT_EQ(BuildPicListSQL(world.connection(), initial).text, tested.statement);
        }
        try {
            const PictureTable table(world.connection(), initial);
            EXPECT_EQ(Numbers(table.pictureIds()), tested.outcome);
            EXPECT_EQ(RunAsItStands(world.connection(), tested.statement), tested.outcome);
            const QString plan = PlanOf(world.connection(), BuildPicListSQL(world.connection(), initial).listText);
            EXPECT_TRUE(plan.contains("COVERING INDEX")) << plan.toStdString();
        } catch (const std::exception& exception) {
            const QString expected = tested.outcome.mid(2);
            EXPECT_TRUE(tested.outcome.startsWith(u'!') && ErrorText(exception).contains(expected)) << exception.what();
        }
    }
}

TEST(PictureTable, ShowsTheCellsAndSortsThem)
{
    QueryWorld world;
    world.change("ModifDateShow = -1, RectangleShow = -1, FilenameShow = 0");
    PictureTable table(world.connection(), "INITIAL ");
    EXPECT_EQ(table.queryName(), initial);
    const char* captions[] = {"ID", "Picture Date", "Place", "Title", "Modified", "Rectangle Tool"};
    const char* cells[] = {"2", "", "PARIS ", "wedding #2", "2026-03-13 00:00:00", "Yes"};
    ASSERT_EQ(table.columns().size(), std::size(captions));
    for (std::size_t column = 0; column < std::size(captions); ++column) {
        EXPECT_EQ(table.columns()[column].caption, captions[column]);
        EXPECT_EQ(table.shown(1, column), cells[column]);
    }
    EXPECT_EQ(table.value(1, 5), "True");

    const std::pair<std::size_t, const char*> clicks[] = {{0, "= 1 2 3 4 5"}, {0, "= 5 4 3 2 1"}, {0, "= 1 2 3 4 5"},
                                                          {1, "= 5 3 1 2 4"}, {1, "= 2 4 1 3 5"}, {2, "= 3 4 5 1 2"},
                                                          {2, "= 1 2 5 3 4"}, {4, "= 4 5 3 1 2"}, {5, "= 2 4 5 1 3"}};
    for (const auto& [column, order] : clicks) {
        table.sortBy(column);
        EXPECT_EQ(Numbers(table.pictureIds()), order) << column;
    }
    EXPECT_EQ(table.shown(0, 3), "wedding #2");
    table.unsort();
    EXPECT_FALSE(table.sort());
    EXPECT_EQ(table.pictureId(4), 5);
}

TEST(PictureTable, FallsBackToTheFirstQuery)
{
    QueryWorld world;
    const auto opened = [&world](const QString& name) {
        const auto table = OpenPictureList(world.connection(), world.environment, name);
        return table ? table->queryName() : "-";
    };
    EXPECT_EQ(opened("zoo"), "Zoo");
    EXPECT_EQ(opened({}), "Zoo");

    world.talk.expect("Cannot find picture list query 'Nobody's'.");
    EXPECT_EQ(opened("Nobody's"), "élan");
    EXPECT_EQ(world.talk.shown().back().text, "Cannot find picture list query 'Nobody's'. Using query 'élan'.\n"
                                              "Use Picture List > Queries to set up and run other queries.");
    EXPECT_EQ(world.defaultQuery(), "élan");

    world.change("FilenameFilter = -1");
    world.talk.expect("Picture List").expect("Picture List");
    EXPECT_EQ(opened(initial), "-");
    world.execute("DELETE FROM PicListQueries");
    EXPECT_EQ(opened(initial), "-");
}

TEST(Relatives, AreFoundOnceEvenInCircles)
{
    QueryWorld world;
    // Person 4, a child of 1 and 2, is a parent of 1 as well.
    world.execute("UPDATE Indi SET FAMC = 11 WHERE Id = 1;"
                  "INSERT INTO Fam2Child (FamId, ChildId) VALUES (11, 1)");
    const FamilyTree tree = FamilyTree::load(world.connection());
    std::set<int> ancestors;
    std::set<int> descendants;
    GetAncIds(tree, 3, ancestors);
    GetDescIds(tree, 1, descendants);
    EXPECT_EQ(ancestors, std::set<int>({1, 2, 4}));
    EXPECT_EQ(descendants, std::set<int>({3, 4, 6}));
    GetAncIds(tree, 99, ancestors);
    EXPECT_EQ(ancestors.size(), 3U);
}

} // namespace stemwright::test
