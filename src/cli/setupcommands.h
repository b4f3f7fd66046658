// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/namedrowcommands.h"

/// The commands below "setup" that have commands of their own.
namespace stemwright
{

void AddSetupTreeCommands(CLI::App& setup, CommandLine& line);
void AddSetupItemCommands(CLI::App& setup, CommandLine& line);

} // namespace stemwright
