// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "cli/cliworld.h"
#include "support/testworld.h"

#include <gtest/gtest.h>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

/// Creating a family file where a file stands asks "Do you want to replace it?", preset with No.
class ConsoleTalkTest : public testing::Test
{
protected:
    void SetUp() override { world.write("old.kvf", "old"); }

    bool wasReplaced() const { return ReadWholeFile(world.path("old.kvf")) != "old"; }

    CliWorld world;
    const QStringList create = {"new", world.path("old.kvf")};
};

} // namespace

TEST_F(ConsoleTalkTest, TakesTheAnswerThatIsTyped)
{
    const std::tuple<QByteArray, bool, int> cases[] = {
        {"n\n", false, 1},           {"\n", false, 1},           {"", false, 1},
        {" NO \n", false, 1},        {"perhaps\nn\n", false, 2}, {"yess\n\n", false, 2},
        {"perhaps\nYES\n", true, 2}, {"y\n", true, 1},
    };

    for (const auto& [typed, replaced, questions] : cases) {
        SCOPED_TRACE(typed.toStdString());
        SetUp();
        const Outcome outcome = world.runOnTerminal(create, typed);
        EXPECT_EQ(outcome.status, replaced ? 0 : 1) << outcome;
        EXPECT_EQ(outcome.output.count("Yes or No? [No]"), questions) << outcome;
        EXPECT_EQ(outcome.output.count("Do you want to replace it?"), 1) << outcome;
        EXPECT_EQ(wasReplaced(), replaced);
    }
}

TEST_F(ConsoleTalkTest, TakesTheAnswerGivenBeforehandOrThePreset)
{
    const std::tuple<QStringList, bool, bool> cases[] = {
        {{}, false, true},       {{"--quiet"}, false, true},          {{"--no"}, false, true},
        {{"--yes"}, true, true}, {{"--yes", "--quiet"}, true, false},
    };
    for (const auto& [options, replaced, shown] : cases) {
        SCOPED_TRACE(options.join(u' ').toStdString());
        SetUp();
        const Outcome outcome = world.run(options + create);
        EXPECT_EQ(outcome.status, replaced ? 0 : 1) << outcome;
        EXPECT_EQ(outcome.errors.contains("Do you want to replace it?"), shown) << outcome;
        EXPECT_EQ(wasReplaced(), replaced);
        EXPECT_EQ(outcome.output, QString());
    }
}

TEST_F(ConsoleTalkTest, ShowsProgressOnTerminalsOnly)
{
    const QString tree = world.writeTree("tree.ged");
    const QString file = world.path("new.kvf");
    const QString goBack = "\r\x1b[K";
    ASSERT_EQ(world.run({"new", file}).status, 0);
    const QStringList import = {"--yes", "import", file, tree};

    const Outcome shown = world.runOnTerminal(import);
    EXPECT_EQ(shown.status, 0) << shown;
    EXPECT_TRUE(shown.output.contains(goBack)) << shown;
    const qsizetype lastPaint = shown.output.lastIndexOf(u'%');
    EXPECT_GT(shown.output.lastIndexOf(goBack), lastPaint) << "the progress line stays behind: " << shown;

    const Outcome redirected = world.run(import);
    EXPECT_FALSE(redirected.errors.contains(QChar(0x1b))) << redirected;
    const Outcome quiet = world.runOnTerminal(QStringList{"--quiet"} + import);
    EXPECT_FALSE(quiet.output.contains(QChar(0x1b))) << quiet;
}
