// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/namesearch.h"

#include <functional>
#include <optional>

namespace stemwright
{

/// Asks the user for an individual of the tree; no value when he chose none, or was told that there is no index.
using PersonPicker = std::function<std::optional<ChosenPerson>()>;

} // namespace stemwright
