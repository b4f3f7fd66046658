// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/version.h"
#include "cli/cliworld.h"
#include "support/testworld.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <gtest/gtest.h>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

QStringList Words(const QString& text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(CommandLine, EndsWithTheStatusThatSaysHowItWent)
{
    CliWorld world;
    world.writeTree("tree.ged");
    world.write("text.kvf", "This is not a family file.");

    for (const QStringList& row : TestTable("cli/statuses.txt")) {
        SCOPED_TRACE(row[0].toStdString());
        const Outcome outcome = world.run(Words(row[0]));
        EXPECT_EQ(outcome.status, row[1].toInt()) << outcome;
        EXPECT_TRUE(outcome.errors.contains(row[2])) << outcome;
        EXPECT_TRUE(outcome.status == 0 || outcome.output.isEmpty()) << outcome;
        EXPECT_TRUE(!row[0].startsWith("--quiet") || (outcome.output + outcome.errors).isEmpty()) << outcome;
    }
    EXPECT_EQ(world.run(Words("contact f.kvf 1")).output,
              "Field    Value\nName     Каренина,  Anna\nEmail1   a'b@c\nEmail2\nWebPage  c\nAddress\nPhone\n");
    EXPECT_EQ(world.run({"--version"}).output, QString("stemwright-cli %1\n").arg(versionText));
}

TEST(CommandLine, TakesPathsOfEveryKind)
{
    CliWorld world;
    const QString tree = world.writeTree("Дерево жизни \"1\".ged");
    for (const char* name : {"with blanks.kvf", "Семья.kvf", "家族 'x'.kvf", "100% & more;.kvf"}) {
        const QString file = world.path(name);
        EXPECT_EQ(world.run({"new", file}).status, 0) << name;
        const Outcome imported = world.run({"--yes", "import", file, tree});
        EXPECT_EQ(imported.status, 0) << name << '\n' << imported;
        const QString site = file + " site/пути";
        const Outcome published = world.run({"--yes", "publish", file, "--output", site});
        EXPECT_EQ(published.output, site + "/index.html\n") << name << '\n' << published;
        EXPECT_TRUE(QFileInfo::exists(site + "/index.html")) << name;
    }
    const Outcome relative = world.run({"--yes", "publish", world.path("Семья.kvf"), "--output", "./beside"});
    EXPECT_EQ(relative.output, world.path("beside/index.html") + '\n') << relative;
}

TEST(CommandLine, WorksWhereTheSystemNamesNoEncoding)
{
    CliWorld world;
    const CliWorld::Variables none = {{"LC_ALL", ""}, {"LC_CTYPE", ""}, {"LANG", ""}};
    const Outcome outcome = world.run({"new", world.path("Семья.kvf")}, none);
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_FALSE(outcome.errors.contains("locale")) << outcome;
    EXPECT_TRUE(QFileInfo::exists(world.path("Семья.kvf")));
}

TEST(CommandLine, PrintsListsAsJson)
{
    CliWorld world;
    ASSERT_EQ(world.run(Words("new f.kvf")).status, 0);
    for (const char* arguments : {"setup list f.kvf", "setup tree f.kvf Default list", "setup items f.kvf Default list",
                                  "query list f.kvf", "query show f.kvf Initial"}) {
        const Outcome outcome = world.run(QStringList{"--json"} + Words(arguments));
        const QJsonArray rows = QJsonDocument::fromJson(outcome.output.toUtf8()).array();
        ASSERT_FALSE(rows.isEmpty()) << arguments << '\n' << outcome;
        EXPECT_FALSE(rows.first().toObject().isEmpty()) << arguments;
        EXPECT_FALSE(world.run(Words(arguments)).output.contains(u'{')) << arguments;
    }
}

TEST(CommandLine, NoticesThatItsOutputCannotBeWritten)
{
    CliWorld world;
    ASSERT_EQ(world.run(Words("new f.kvf")).status, 0);
    const QString list = STEMWRIGHT_CLI " setup list f.kvf >";
    EXPECT_EQ(world.runProgram("sh", {"-c", list + "/dev/null"}).status, 0);
    EXPECT_EQ(world.runProgram("sh", {"-c", list + "/dev/full"}).status, 1);
}
