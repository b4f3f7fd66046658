// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "cli/commandline.h"
#include "index/descendants.h"
#include "store/tables/defaultrows.h"
#include "web/messages.h"
#include "web/setup/setupediting.h"
#include "web/setup/setupmanager.h"
#include "web/sitebuild.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

struct PublishArguments {
    std::string file;
    std::string setup;
    std::optional<int> head;
    std::string output;
};

/// The setup that was named; otherwise the default one, or the only one.
QString ChosenSetup(CommandLine& line, const PublishArguments& arguments)
{
    if (!arguments.setup.empty()) {
        return CommandLine::textOf(arguments.setup);
    }
    const QStringList names = SetupManager(line.file().connection(), line.environment()).names();
    if (names.size() == 1) {
        return names.front();
    }
    if (names.contains(defaultSetupName, Qt::CaseInsensitive)) {
        return defaultSetupName;
    }
    throw Error(QStringLiteral("Please name the setup to publish with --setup: %1.")
                    .arg(names.isEmpty() ? QStringLiteral("there is none yet") : names.join(QStringLiteral(", "))));
}

/// The individual with the most descendants, when the user agrees to have that one at the head.
int ProposedHead(CommandLine& line, const QString& setupName)
{
    Connection& connection = line.file().connection();
    const FamilyTree tree = FamilyTree::load(connection);
    const std::optional<TreePosition> proposed = IndividualWithMostDescendants(tree);
    if (!proposed) {
        throw Error(webmessages::NoFamilies());
    }
    const int id = tree.individualId(*proposed);
    Statement name = connection.prepare(
        QStringLiteral("SELECT trim(coalesce(GivenName, '') || ' ' || coalesce(Surname, '')) FROM Indi WHERE Id = ?1"));
    name.bind(1, id).step();
    const Message question =
        webmessages::ProposeTreeHead(name.text(0).simplified(), id, CountDescendants(tree, *proposed));
    if (line.environment().talk.ask(question) != Button::Yes) {
        throw Error(webmessages::NoTreeHeadChosen(setupName));
    }
    return id;
}

/// Sees to it that every tree of the setup has a head, the one that was named or one that the user agrees to.
void ProvideHeads(CommandLine& line, const QString& setupName, const std::optional<int>& named)
{
    SetupEditing editing(line.file().connection(), line.environment(), setupName);
    std::vector<TreeDefinition> headless = editing.trees().definitions();
    const bool isHeadAlready = std::any_of(headless.begin(), headless.end(), [&named](const TreeDefinition& tree) {
        return named && tree.headId == named;
    });
    std::erase_if(headless, [](const TreeDefinition& tree) { return tree.headId.has_value(); });
    if (headless.empty()) {
        if (named && !isHeadAlready) {
            throw Error(webmessages::TreesHaveHeads(setupName));
        }
        return;
    }
    const int head = named ? *named : ProposedHead(line, setupName);
    for (const TreeDefinition& tree : headless) {
        editing.trees().edit(tree.number);
        Require(editing.trees().setHead(head));
        Require(editing.trees().apply());
    }
    Require(editing.save());
}

void Publish(CommandLine& line, const PublishArguments& arguments)
{
    FamilyFile& file = line.open(arguments.file);
    const QString setup = ChosenSetup(line, arguments);
    ProvideHeads(line, setup, arguments.head);
    const QString output =
        arguments.output.empty() ? QString() : QFileInfo(CommandLine::pathOf(arguments.output)).absoluteFilePath();
    const std::optional<QString> index = BuildWebPages(file, {setup, output}, line.environment());
    Require(index.has_value());
    TellWebPagesCreated(*index, line.environment());
    line.out() << *index << Qt::endl;
}

} // namespace

void AddPublishCommands(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("publish", "Build the web site of a setup and print the path of its index.html");
    auto arguments = std::make_shared<PublishArguments>();
    command->add_option("FILE", arguments->file, "The family file")->required();
    command->add_option("--setup", arguments->setup, "The setup; the default or only one without this option");
    command->add_option("--head", arguments->head, "The number of the individual at the head, for trees without one");
    command->add_option("--output", arguments->output, "The output folder of this run, instead of the setup's");
    command->callback([&line, arguments] { Publish(line, *arguments); });
}

} // namespace stemwright
