// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandline.h"
#include "oldalbum/namematching.h"

namespace stemwright
{

/// Goes through the names on the terminal: shows the proposals for each, and does what is typed until the last name or
/// the user's wish to stop. Throws AlreadyReported when a decision could not be written.
void MatchOnTerminal(NameMatching& matching, CommandLine& line);

} // namespace stemwright
