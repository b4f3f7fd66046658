// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "stage.h"

/// The pairs that are measured, each round our work and then its limit. What is inside the timings stands in README.md.
/// Throws std::runtime_error when a program fails. Stands on the stage.
namespace stemwright::bench
{

/// The bytes that a size needs at most.
struct Needs {
    std::uint64_t memory = 0;
    std::uint64_t disk = 0;
};

Needs NeedsOf(std::uint32_t individuals);

/// `stemwright-cli import` into an empty family file against limit_import.
PairResult MeasureImport(const Bench& bench, std::uint32_t individuals);

/// `stemwright-cli publish` with personal pages into a new folder against limit_publish, for each display whose pages
/// are split: an Outline, a Descendant Tree, and an Ancestor Tree of a pedigree.
PairResult MeasurePublishing(const Bench& bench, std::uint32_t individuals);
PairResult MeasureDescendantTree(const Bench& bench, std::uint32_t individuals);
PairResult MeasureAncestorTree(const Bench& bench, std::uint32_t individuals);

} // namespace stemwright::bench
