// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandline.h"
#include "store/file/namedrows.h"

#include <QtCore/QString>

#include <memory>
#include <string>

/// The commands by which rows that users keep under names are managed, the same for setups and for queries.
namespace stemwright
{

/// The family file and the row that a command is about.
struct NamedRowArguments {
    std::string file;
    std::string name;

    Connection& open(CommandLine& line) const { return line.open(file).connection(); }

    QString rowName() const { return CommandLine::textOf(name); }
};

/// Adds FILE and NAME to a command. `what` is what users call such a row, "setup" or "query".
std::shared_ptr<NamedRowArguments> AddNamedRowArguments(CLI::App& command, const std::string& what);

/// How the manager of a kind of rows is made.
using MakeManager = std::unique_ptr<NamedRowManager> (*)(Connection& connection, Environment& environment);

template <typename Manager>
std::unique_ptr<NamedRowManager> Make(Connection& connection, Environment& environment)
{
    return std::make_unique<Manager>(connection, environment);
}

/// Adds the commands new, clone, rename and delete.
void AddNamedRowCommands(CLI::App& app, CommandLine& line, const std::string& what, MakeManager make);

} // namespace stemwright
