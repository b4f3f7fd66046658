// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/listing.h"
#include "cli/setupcommands.h"
#include "web/setup/setupediting.h"

namespace stemwright
{

namespace
{

/// What can be given of a tree.
struct TreeOptions {
    std::optional<int> head;
    std::string display;
    std::optional<int> icon;
    int number = 0;
};

void AddNumber(CLI::App& command, TreeOptions& options)
{
    command.add_option("N", options.number, "The number of the tree, as listed")->required();
}

CLI::Option* AddTreeOptions(CLI::App& command, TreeOptions& options)
{
    command.add_option("--display", options.display, "Outline, Descendant Tree, CollapsiTree or Ancestor Tree");
    command.add_option("--icon", options.icon, "The number of the tree's icon, 1 and up");
    return command.add_option("--head", options.head, "The number of the individual at the head of the tree");
}

/// Makes the changes to the tree that was taken up and applies it.
void ApplyOptions(SetupEditing& editing, const TreeOptions& options)
{
    TreeEditing& trees = editing.trees();
    if (options.head) {
        Require(trees.setHead(*options.head));
    }
    if (!options.display.empty()) {
        trees.setDisplay(CommandLine::textOf(options.display));
    }
    if (options.icon) {
        trees.setIcon(*options.icon);
    }
    // A tree that still has no head is stored all the same; the user was told.
    trees.apply();
    Require(editing.save());
}

void AddList(CLI::App& tree, CommandLine& line, const std::shared_ptr<NamedRowArguments>& arguments)
{
    auto* command = tree.add_subcommand("list", "List the trees of the setup");
    command->callback([&line, arguments] {
        SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        Listing listing({QStringLiteral("N"), QStringLiteral("Head"), QStringLiteral("Name"), QStringLiteral("Display"),
                         QStringLiteral("Icon")});
        for (const TreeDefinition& definition : editing.trees().definitions()) {
            const QJsonValue head = definition.headId ? QJsonValue(*definition.headId) : QJsonValue();
            listing.row({definition.number, head, definition.headName, definition.display, definition.icon});
        }
        listing.print(line);
    });
}

void AddAdd(CLI::App& tree, CommandLine& line, const std::shared_ptr<NamedRowArguments>& arguments)
{
    auto* command = tree.add_subcommand("add", "Add a tree (the first one takes the place of the tree without a head)");
    auto options = std::make_shared<TreeOptions>();
    AddTreeOptions(*command, *options)->required();
    command->callback([&line, arguments, options] {
        SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        editing.trees().addOrFillFirst();
        ApplyOptions(editing, *options);
    });
}

void AddEdit(CLI::App& tree, CommandLine& line, const std::shared_ptr<NamedRowArguments>& arguments)
{
    auto* command = tree.add_subcommand("edit", "Change a tree");
    auto options = std::make_shared<TreeOptions>();
    AddNumber(*command, *options);
    AddTreeOptions(*command, *options);
    command->callback([&line, arguments, options] {
        if (!options->head && !options->icon && options->display.empty()) {
            throw CLI::RequiredError("One of --head, --display and --icon");
        }
        SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        editing.trees().edit(options->number);
        ApplyOptions(editing, *options);
    });
}

void AddDelete(CLI::App& tree, CommandLine& line, const std::shared_ptr<NamedRowArguments>& arguments)
{
    auto* command = tree.add_subcommand("delete", "Delete a tree, after asking");
    auto options = std::make_shared<TreeOptions>();
    AddNumber(*command, *options);
    command->callback([&line, arguments, options] {
        SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        Require(editing.trees().remove(options->number));
        Require(editing.save());
    });
}

} // namespace

void AddSetupTreeCommands(CLI::App& setup, CommandLine& line)
{
    auto* tree = setup.add_subcommand("tree", "List and change the trees of a setup");
    tree->require_subcommand(1);
    const std::shared_ptr<NamedRowArguments> arguments = AddNamedRowArguments(*tree, "setup");
    AddList(*tree, line, arguments);
    AddAdd(*tree, line, arguments);
    AddEdit(*tree, line, arguments);
    AddDelete(*tree, line, arguments);
}

} // namespace stemwright
