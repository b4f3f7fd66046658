// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/tables/createtables.h"

#include "base/files.h"
#include "store/engine/schema.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

/// All rows of all tables, in the form of the golden file.
QString Rows(Connection& connection)
{
    QStringList lines;
    for (const TableDefinition& table : FamilyFileTables()) {
        if (connection.countRows(table.name) > 0) {
            lines << table.name;
        }
        Statement row = connection.prepare(QString("SELECT * FROM \"%1\" ORDER BY rowid").arg(table.name));
        while (row.step()) {
            QString mark = "- ";
            for (int column = 0; column < row.columnCount(); ++column) {
                if (!row.isNull(column)) {
                    lines << mark + row.columnName(column) + u'=' + row.text(column).replace(u'\t', u'⇥');
                    mark = "  ";
                }
            }
        }
    }
    return lines.join(u'\n') + u'\n';
}

QString GoldenRows(const QString& applicationFolder)
{
    QString golden = TestDataText("store/newfile.txt");
    golden.remove(0, golden.indexOf(u'\n') + 1);
    return golden.replace("<application>", applicationFolder);
}

} // namespace

TEST(CreateTables, NewFileHoldsItsDefaultRowsAndNoOthers)
{
    TestWorld world;
    world.application = ApplicationFolder(world.path("application"));
    ASSERT_TRUE(CreateFolderPath(world.application.file("graphics")));
    world.write("application/graphics/tree.gif", "GIF89a of the application");
    EXPECT_EQ(Rows(world.newFamilyFile().connection()), GoldenRows(world.application.path()));
    EXPECT_EQ(world.settings.value(setting::picListQueries, setting::defaultPicListQuery), "Initial");
}

TEST(CreateTables, WithoutTheEmblemTheSetupIsWrittenAllTheSame)
{
    TestWorld world;
    world.application = ApplicationFolder(world.path("nowhere"));
    Statement setup =
        world.newFamilyFile().connection().prepare("SELECT EmblemPicture, EmblemFiletype, SetupName FROM WebSiteInfo");
    ASSERT_TRUE(setup.step());
    EXPECT_TRUE(setup.isNull(0));
    EXPECT_TRUE(setup.isNull(1));
    EXPECT_EQ(setup.text(2), "Default");
}

TEST(CreateTables, ATableIsNotCreatedTwice)
{
    TestWorld world;
    Connection& connection = world.newFamilyFile().connection();
    EXPECT_THROW(CreateUniqueIdsTable(connection), SQLite::Exception);
    CreatePreV2IndiTable(connection);
    CreatePreV2Pic2PersonTable(connection);
    EXPECT_TRUE(connection.hasTable(u"prev2indi"));
}

} // namespace stemwright::test
