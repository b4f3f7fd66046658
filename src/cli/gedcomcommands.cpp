// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"

namespace stemwright
{

void AddGedcomCommands(CLI::App&, CommandLine&) {}

} // namespace stemwright
