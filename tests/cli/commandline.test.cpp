// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/version.h"
#include "cli/cliworld.h"

#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <gtest/gtest.h>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

QStringList Words(const char* text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(CommandLine, EndsWithTheStatusThatSaysHowItWent)
{
    CliWorld world;
    world.writeTree(QStringLiteral("tree.ged"));
    world.write(QStringLiteral("text.kvf"), "This is not a family file.");

    const std::tuple<const char*, int, const char*> cases[] = {
        {"", 2, "A subcommand is required"},
        {"nothing", 2, "subcommand"},
        {"--yes --no new f.kvf", 2, "--no"},
        {"new", 2, "FILE"},
        {"new f.kvf g.kvf", 2, "g.kvf"},
        {"new --colour f.kvf", 2, "--colour"},
        {"publish f.kvf --head nobody", 2, "nobody"},
        {"new f.kvf", 0, ""},
        {"--quiet new g.kvf", 0, ""},
        {"open f.kvf", 0, ""},
        {"--quiet --yes import f.kvf tree.ged", 0, ""},
        {"--yes import f.kvf tree.ged", 0, ""},
        {"--quiet check f.kvf", 0, ""},
        {"check f.kvf", 0, ""},
        {"--quiet save-as f.kvf copy.kvf", 0, ""},
        {"open none.kvf", 1, "none.kvf"},
        {"check text.kvf", 1, "text.kvf"},
        {"import f.kvf none.ged", 1, "none.ged"},
        {"new none/f.kvf", 1, "none/f.kvf"},
        {"publish f.kvf --setup None", 1, "None"},
        {"publish f.kvf", 1, "--head"},
    };

    for (const auto& [arguments, status, saying] : cases) {
        SCOPED_TRACE(arguments);
        const Outcome outcome = world.run(Words(arguments));
        EXPECT_EQ(outcome.status, status) << outcome;
        EXPECT_TRUE(outcome.errors.contains(QLatin1String(saying))) << outcome;
        EXPECT_TRUE(status == 0 || outcome.output.isEmpty()) << outcome;
        if (Words(arguments).value(0) == u"--quiet") {
            EXPECT_EQ(outcome.output + outcome.errors, QString());
        }
    }
    EXPECT_EQ(world.run({QStringLiteral("--version")}).output,
              QStringLiteral("stemwright-cli %1\n").arg(QLatin1String(versionText)));
}

TEST(CommandLine, TakesPathsOfEveryKind)
{
    CliWorld world;
    const QString tree = world.writeTree(QStringLiteral("Дерево жизни \"1\".ged"));
    for (const char* name : {"with blanks.kvf", "Семья.kvf", "家族 'x'.kvf", "100% & more;.kvf"}) {
        const QString file = world.path(QString::fromUtf8(name));
        EXPECT_EQ(world.run({QStringLiteral("new"), file}).status, 0) << name;
        const Outcome imported = world.run({QStringLiteral("--yes"), QStringLiteral("import"), file, tree});
        EXPECT_EQ(imported.status, 0) << name << '\n' << imported;
        const QString site = file + QStringLiteral(" site/пути");
        const Outcome published =
            world.run({QStringLiteral("--yes"), QStringLiteral("publish"), file, QStringLiteral("--output"), site});
        EXPECT_EQ(published.output, site + QStringLiteral("/index.html\n")) << name << '\n' << published;
        EXPECT_TRUE(QFileInfo::exists(site + QStringLiteral("/index.html"))) << name;
    }
}

TEST(CommandLine, WorksWhereTheSystemNamesNoEncoding)
{
    CliWorld world;
    CliWorld::Variables none;
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        none.insert(QLatin1String(variable), {});
    }
    const Outcome outcome = world.run({QStringLiteral("new"), world.path(QStringLiteral("Семья.kvf"))}, none);
    EXPECT_EQ(outcome.status, 0) << outcome;
    EXPECT_FALSE(outcome.errors.contains(QStringLiteral("locale"))) << outcome;
    EXPECT_TRUE(QFileInfo::exists(world.path(QStringLiteral("Семья.kvf"))));
}

TEST(CommandLine, PrintsListsAsJson)
{
    CliWorld world;
    ASSERT_EQ(world.run(Words("new f.kvf")).status, 0);
    for (const char* arguments :
         {"setup list f.kvf", "setup tree f.kvf Default list", "setup items f.kvf Default list"}) {
        const Outcome outcome = world.run(QStringList{QStringLiteral("--json")} + Words(arguments));
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
    QProcess program;
    program.setWorkingDirectory(world.path({}));
    program.setProcessEnvironment(world.environment());
    program.setStandardOutputFile(QStringLiteral("/dev/full"));
    program.start(QStringLiteral(STEMWRIGHT_CLI), Words("setup list f.kvf"));
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
}
