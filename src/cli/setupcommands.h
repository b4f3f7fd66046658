// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandline.h"
#include "store/engine/connection.h"

#include <QtCore/QString>

#include <memory>
#include <string>

/// What the commands below "setup" share.
namespace stemwright
{

/// The family file and the setup that a command is about.
struct SetupArguments {
    std::string file;
    std::string name;

    Connection& open(CommandLine& line) const { return line.open(file).connection(); }

    QString setupName() const { return CommandLine::textOf(name); }
};

/// Adds FILE and NAME to a command.
std::shared_ptr<SetupArguments> AddSetupArguments(CLI::App& command);

void AddSetupTreeCommands(CLI::App& setup, CommandLine& line);
void AddSetupItemCommands(CLI::App& setup, CommandLine& line);

} // namespace stemwright
