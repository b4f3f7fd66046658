// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace stemwright::test
{

/// Runs `action` in a process of its own that ends at once after it, destroying nothing, as a killed program would.
/// Returns what the action returned; -1 when the process crashed.
int RunInOwnProcess(const std::function<int()>& action);

} // namespace stemwright::test
