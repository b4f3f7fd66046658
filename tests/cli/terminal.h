// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/cliworld.h"

namespace stemwright::test
{

/// What the keyboard's end-of-input key sends.
inline const QByteArray endOfInput = QByteArrayLiteral("\x04");

/// Runs the program on a terminal of its own, with a user who types all of `typed` beforehand. What the terminal showed
/// stands in the outcome's output, with the typed text as the terminal echoes it.
Outcome RunOnTerminal(const CliWorld& world, const QStringList& arguments, const QByteArray& typed);

} // namespace stemwright::test
