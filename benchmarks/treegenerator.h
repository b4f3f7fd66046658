// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "treeplan.h"

#include <cstdint>
#include <functional>
#include <string_view>

/// Writes GEDCOM 5.5.1 files of any size for measuring and testing: a tree as TreePlan plans it, with names of several
/// scripts, dates, places, facts and notes. The same number of individuals gives the same bytes on every machine. It
/// fails only as the receiver of the text fails. Stands on the plan and the pools of words.
namespace stemwright::bench
{

/// What a generated file holds: level 0 records and CHIL lines.
struct TreeCounts {
    std::uint32_t individuals = 0;
    std::uint32_t families = 0;
    std::uint32_t children = 0;
};

/// Takes the next piece of the file, UTF-8 with LF line ends.
using TextReceiver = std::function<void(std::string_view)>;

/// Generates a file with exactly this many individuals, at least 2. Individual 1 is the head from whom most descend, or
/// who descends from all others.
TreeCounts GenerateTree(std::uint32_t individuals, const TextReceiver& receiver,
                        TreeShape shape = TreeShape::Offspring);

} // namespace stemwright::bench
