// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"

namespace stemwright
{

namespace
{

void AddNew(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("new", "Create an empty family file");
    auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "The family file to create")->required();
    command->callback(
        [&line, path] { Require(CreateFamilyFile(line.file(), CommandLine::pathOf(*path), line.environment())); });
}

} // namespace

void AddFileCommands(CLI::App& app, CommandLine& line)
{
    AddNew(app, line);
}

} // namespace stemwright
