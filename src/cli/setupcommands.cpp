// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"

namespace stemwright
{

void AddSetupCommands(CLI::App&, CommandLine&) {}

} // namespace stemwright
