// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/namedrowcommands.h"

namespace stemwright
{

namespace
{

/// A command that gives a row or its copy another name.
void AddNaming(CLI::App& app, CommandLine& line, const std::string& what, MakeManager make, const char* name,
               const std::string& description, bool (NamedRowManager::*procedure)(const QString&, const QString&))
{
    auto* command = app.add_subcommand(name, description);
    auto arguments = AddNamedRowArguments(*command, what);
    auto newName = std::make_shared<std::string>();
    command->add_option("NEWNAME", *newName, "The new name")->required();
    command->callback([&line, arguments, newName, make, procedure] {
        const auto manager = make(arguments->open(line), line.environment());
        Require((manager.get()->*procedure)(arguments->rowName(), CommandLine::textOf(*newName)));
    });
}

} // namespace

std::shared_ptr<NamedRowArguments> AddNamedRowArguments(CLI::App& command, const std::string& what)
{
    auto arguments = std::make_shared<NamedRowArguments>();
    command.add_option("FILE", arguments->file, "The family file")->required();
    command.add_option("NAME", arguments->name, "The name of the " + what)->required();
    return arguments;
}

void AddNamedRowCommands(CLI::App& app, CommandLine& line, const std::string& what, MakeManager make)
{
    auto* creation = app.add_subcommand("new", "Make a " + what + " with default values");
    auto created = AddNamedRowArguments(*creation, what);
    creation->callback(
        [&line, created, make] { Require(make(created->open(line), line.environment())->create(created->rowName())); });
    AddNaming(app, line, what, make, "clone", "Copy a " + what + " under a new name", &NamedRowManager::clone);
    AddNaming(app, line, what, make, "rename", "Give a " + what + " a new name", &NamedRowManager::rename);
    auto* deletion = app.add_subcommand("delete", "Delete a " + what + ", after asking");
    auto deleted = AddNamedRowArguments(*deletion, what);
    deletion->callback(
        [&line, deleted, make] { Require(make(deleted->open(line), line.environment())->remove(deleted->rowName())); });
}

} // namespace stemwright
