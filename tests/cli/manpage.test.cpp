// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "cli/cliworld.h"
#include "support/testworld.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <gtest/gtest.h>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

/// The names in the section `heading` of a help text: the first word of each indented line.
QStringList NamesBelow(const QString& help, const QString& heading)
{
    QStringList names;
    bool inSection = false;
    for (const QString& line : help.split(u'\n')) {
        if (!line.startsWith(u' ')) {
            inSection = line.startsWith(heading);
        } else if (inSection && line.startsWith("  ") && line[2] != u' ') {
            names << line.trimmed().section(QRegularExpression("[ ,]"), 0, 0);
        }
    }
    return names;
}

/// All commands, found by asking for help everywhere, down to those without subcommands. `typed` leads to the command
/// `name`, with words that stand for the arguments between.
void CollectCommands(const CliWorld& world, const QStringList& typed, const QString& name, QSet<QString>& commands)
{
    const Outcome help = world.run(typed + QStringList{"--help"});
    EXPECT_EQ(help.status, 0) << name << '\n' << help;
    EXPECT_TRUE(help.output.contains("Usage: stemwright-cli " + name)) << help;
    const QStringList below = NamesBelow(help.output, "Subcommands:");
    if (below.isEmpty()) {
        commands.insert(name);
    }
    const QStringList arguments = NamesBelow(help.output, "Positionals:");
    for (const QString& word : below) {
        CollectCommands(world, typed + arguments + QStringList{word}, (name + u' ' + word).trimmed(), commands);
    }
}

} // namespace

TEST(ManualPage, DescribesExactlyTheCommandsThatExist)
{
    const CliWorld world;
    QSet<QString> existing;
    CollectCommands(world, {}, {}, existing);

    QSet<QString> described;
    const QString manual = QString::fromUtf8(ReadWholeFile(STEMWRIGHT_MANUAL));
    const QRegularExpression command("^\\.TP\n\\.B ((?:[a-z\\\\-]+ ?)+)$", QRegularExpression::MultilineOption);
    const QString commands = manual.section(".SH COMMANDS", 1).section("\n.SH ", 0, 0);
    for (auto found = command.globalMatch(commands); found.hasNext();) {
        described.insert(found.next().captured(1).trimmed().remove(u'\\'));
    }
    EXPECT_EQ(existing - described, QSet<QString>()) << "not in the manual page";
    EXPECT_EQ(described - existing, QSet<QString>()) << "only in the manual page";
}
