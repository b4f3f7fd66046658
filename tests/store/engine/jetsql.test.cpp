// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/jetsql.h"

#include "base/error.h"
#include "base/files.h"
#include "support/testworld.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace stemwright::test
{

namespace
{

/// A query of the data file and what it must give, both as they stand there.
struct QueryCase {
    QString sql;
    QStringList expected;
};

std::vector<QueryCase> ReadCases()
{
    std::vector<QueryCase> cases;
    for (const QString& line : TestDataText("store/queries.txt").split(u'\n')) {
        if (line.isEmpty() || line.startsWith(u'#')) {
            continue;
        }
        if (QString("=!*").contains(line[0])) {
            cases.back().expected << line;
        } else {
            cases.push_back({line, {}});
        }
    }
    return cases;
}

QString ShownValue(const Statement& statement, int column)
{
    if (statement.isNull(column)) {
        return "~";
    }
    const QString name = statement.columnName(column);
    const bool binary = name == u"Picture" || name == u"Thumb";
    return binary ? QString("<%1>").arg(statement.bytes(column).size()) : statement.text(column);
}

QStringList RowsOf(Statement& statement)
{
    QStringList rows;
    while (statement.step()) {
        QStringList values;
        for (int column = 0; column < statement.columnCount(); ++column) {
            values << ShownValue(statement, column);
        }
        rows << "= " + values.join(u'|');
    }
    return rows;
}

/// What running the query gives, in the data file's own form.
QStringList Outcome(Connection& connection, const QueryCase& query)
{
    try {
        if (!query.sql.startsWith("SELECT")) {
            return {QString("* %1").arg(connection.executeJet(query.sql))};
        }
        Statement statement = connection.prepareJet(query.sql);
        return RowsOf(statement);
    } catch (const std::exception& exception) {
        return {"! " + ErrorText(exception)};
    }
}

class JetSql : public testing::Test
{
protected:
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
};

} // namespace

TEST_F(JetSql, EveryQueryGivesItsRows)
{
    connection.execute(TestDataText("store/queries.sql"));
    const std::vector<QueryCase> cases = ReadCases();
    ASSERT_GT(cases.size(), 60U);
    for (const QueryCase& query : cases) {
        const QStringList outcome = Outcome(connection, query);
        if (query.expected.value(0).startsWith(u'!')) {
            EXPECT_TRUE(outcome.value(0).startsWith(u'!') && outcome.value(0).contains(query.expected[0].mid(2)))
                << query.sql << "\n  gives " << outcome.join(u'\n');
        } else {
            EXPECT_EQ(outcome.join(u'\n'), query.expected.join(u'\n')) << query.sql;
        }
    }
}

TEST_F(JetSql, CriteriaFindTheirRows)
{
    connection.execute(TestDataText("store/queries.sql"));
    for (const QStringList& row : TestTable("store/criteria.txt")) {
        Statement found = connection.prepareJet("SELECT * FROM " + row[0] + " WHERE " + row[1]);
        EXPECT_EQ(RowsOf(found).size(), row[2].toInt()) << row[1];
    }
}

TEST_F(JetSql, CriteriaHaveAnEndHoweverDeepTheyAre)
{
    const QString everybody = "SELECT Id FROM Indi WHERE ";
    EXPECT_THROW(TranslateJetSql(everybody + "Surname = 'O'Brien'"), Error);
    EXPECT_THROW(TranslateJetSql(everybody + QString(100000, u'(')), Error);
    EXPECT_NO_THROW(TranslateJetSql(everybody + QString("NOT ").repeated(100000) + u'1'));
}

TEST_F(JetSql, ParametersTakeTextsWithQuotes)
{
    Statement insert = connection.prepare("INSERT INTO SelectedItems (SetupName) VALUES (?1)");
    insert.bind(1, "Ann's; DROP ").run();
    Statement find = connection.prepareJet("SELECT * FROM SelectedItems WHERE SetupName = ?1");
    EXPECT_TRUE(find.bind(1, "ANN'S; drop").step());
}

/// A list of pictures must cost the same whatever the pictures weigh, so what tells which rows repeat may not read
/// them.
TEST_F(JetSql, DistinctRowsNeverReadPictures)
{
    connection.execute("INSERT INTO AlbumTOC (Picture) VALUES (zeroblob(100000000)), (zeroblob(100000000));"
                       "INSERT INTO Pic2Person (PicId, PersId) VALUES (1, 1), (1, 2), (2, 1)");
    const qint64 before = sqlite3_memory_used();
    sqlite3_memory_highwater(1);
    Statement statement =
        connection.prepareJet("SELECT DISTINCTROW AlbumTOC.PicId FROM AlbumTOC, Pic2Person WHERE AlbumTOC.PicId ="
                              " Pic2Person.PicId AND NOT IsNull(AlbumTOC.Picture) ORDER BY AlbumTOC.PicId");
    EXPECT_EQ(RowsOf(statement), (QStringList{"= 1", "= 2"}));
    EXPECT_LT(sqlite3_memory_highwater(0) - before, 10'000'000);
}

} // namespace stemwright::test
