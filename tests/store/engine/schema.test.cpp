// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/schema.h"

#include "base/files.h"
#include "store/engine/tablesql.h"
#include "support/testworld.h"

#include <QtCore/QRegularExpression>

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

/// A column or an index of the golden table list, as it stands there.
struct ListedTable {
    QString name;
    std::vector<QStringList> columns;
    QStringList keys;
    QStringList indexes;
};

std::vector<ListedTable> ReadList()
{
    std::vector<ListedTable> tables;
    for (const QString& line : TestDataText("store/schema.txt").split(u'\n')) {
        const QStringList words =
            line.startsWith(u'#') ? QStringList() : line.simplified().split(u' ', Qt::SkipEmptyParts);
        if (words.isEmpty()) {
            continue;
        }
        if (words[0] == u"table") {
            tables.push_back({words[1], {}, {}, {}});
        } else if (words[0] == u"column") {
            tables.back().columns.push_back(words.mid(1));
        } else {
            (words[0] == u"key" ? tables.back().keys : tables.back().indexes) << words[1];
        }
    }
    return tables;
}

/// Whether the engine takes a value for a column of a new row.
bool Takes(Connection& connection, const QString& table, const QString& column, const QString& value)
{
    const Transaction undone(connection);
    Statement insert = connection.prepare(QString("INSERT INTO \"%1\" (\"%2\") VALUES (?1)").arg(table, column));
    try {
        return insert.bind(1, value).run() == 1;
    } catch (const SQLite::Exception&) {
        return false;
    }
}

/// What the engine makes of the text 007 in a column: text keeps its zeros.
QString Stored007(Connection& connection, const QString& table, const QString& column)
{
    const Transaction undone(connection);
    connection.execute(QString("DELETE FROM \"%1\"; INSERT INTO \"%1\" (\"%2\") VALUES ('007')").arg(table, column));
    return Rows(connection, QString("SELECT \"%2\" FROM \"%1\"").arg(table, column)).value(0);
}

void ExpectColumnRules(Connection& connection, const QString& table, const QStringList& column)
{
    const QString& name = column[0];
    const QString& type = column[1];
    const bool emptyTaken = column.value(2) == u"ZL";
    SCOPED_TRACE((table + u'.' + name).toStdString());
    EXPECT_TRUE(type == u"integer" || Takes(connection, table, name, QString()));
    EXPECT_TRUE(type != u"text" || Takes(connection, table, name, "") == emptyTaken);
    if (type == u"text" || type == u"memo" || type == u"date") {
        EXPECT_EQ(Stored007(connection, table, name), "007");
    }
    const std::tuple<QString, QString, bool> rules[] = {{"text", QString(255, u'ü'), true},
                                                        {"text", QString(256, u'x'), false},
                                                        {"memo", QString(100000, u'x'), true},
                                                        {"memo", "", true},
                                                        {"yes/no", "-1", true},
                                                        {"yes/no", "0", true},
                                                        {"yes/no", "1", false},
                                                        {"integer", "-2147483648", true},
                                                        {"integer", "2147483648", false},
                                                        {"integer", "seven", false}};
    for (const auto& [ruled, value, taken] : rules) {
        EXPECT_TRUE(ruled != type || Takes(connection, table, name, value) == taken) << value.left(20);
    }
}

} // namespace

TEST(Schema, TablesAreAsListed)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    for (const TableDefinition& table : OldAlbumTables()) {
        CreateTable(connection, table);
    }
    const Transaction fasterThanOneForEachValue(connection);
    const std::vector<ListedTable> tables = ReadList();
    QStringList names;
    for (const ListedTable& table : tables) {
        names << table.name;
        QStringList columns;
        for (const QStringList& column : table.columns) {
            columns << column[0];
            ExpectColumnRules(connection, table.name, column);
        }
        const auto listed = [&](const char* sql) { return Rows(connection, QString(sql).arg(table.name)); };
        EXPECT_EQ(listed("SELECT name FROM pragma_table_info('%1')"), columns);
        EXPECT_EQ(listed("SELECT name FROM pragma_table_info('%1') WHERE pk"), table.keys);
        EXPECT_EQ(listed("SELECT i.name FROM pragma_index_list('%1') AS l, pragma_index_info(l.name) AS i"
                         " WHERE l.origin = 'c' AND NOT l.\"unique\" ORDER BY l.seq DESC"),
                  table.indexes);
    }
    EXPECT_EQ(Rows(connection, "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE"
                               " 'sqlite%' ORDER BY rowid"),
              names);
}

TEST(Schema, KeysTellNoUpperFromLowerCase)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    connection.execute("INSERT INTO SchemaIndi (Fact) VALUES ('_FA1')");
    EXPECT_FALSE(Takes(connection, "SchemaIndi", "Fact", "_fa1"));
    EXPECT_THROW(CreateTable(connection, TableNamed(u"indi")), SQLite::Exception);
}

TEST(Schema, CutsTextsToWhatAColumnHolds)
{
    const QString filler(254, u'x');
    const std::pair<QString, QString> cases[] = {
        {filler + "\U0001F600", filler + "\U0001F600"},
        {filler + "\U0001F600z", filler + "\U0001F600"},
        {filler + "éz", filler + "é"},
        {QString("\U0001F600").repeated(255), QString("\U0001F600").repeated(255)},
        {"", ""}};
    for (const auto& [text, cut] : cases) {
        EXPECT_EQ(CutToColumn(text), cut);
    }
    EXPECT_TRUE(CutToColumn(QString()).isNull());
}

} // namespace stemwright::test
