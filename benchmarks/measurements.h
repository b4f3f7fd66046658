// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "figures.h"

#include <optional>
#include <string>

/// The pairs that are measured, each round our work and then its limit. What is inside the timings stands in README.md.
/// Throws std::runtime_error when a program fails. Stands on processes and work folders.
namespace stemwright::bench
{

/// Where things are.
struct Bench {
    /// The folder of the built programs.
    std::string programs;
    /// A folder on a tmpfs, for everything whose writing is timed.
    std::string memory;
    /// A folder on a disk, for what is only read.
    std::string disk;
    /// A pair is measured again until this many seconds are used up, at least twice and at most 9 times.
    double secondsPerPair = 0;
};

/// The bytes that a size needs at most.
struct Needs {
    std::uint64_t memory = 0;
    std::uint64_t disk = 0;
};

Needs NeedsOf(std::uint32_t individuals);

/// `stemwright-cli import` into an empty family file against limit_import.
PairResult MeasureImport(const Bench& bench, std::uint32_t individuals);

/// `stemwright-cli publish` with personal pages into a new folder against limit_publish.
PairResult MeasurePublishing(const Bench& bench, std::uint32_t individuals);

} // namespace stemwright::bench
