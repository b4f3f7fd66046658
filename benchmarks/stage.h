// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "figures.h"
#include "process.h"
#include "stopwatch.h"
#include "treeplan.h"
#include "workfolder.h"

#include <string>
#include <vector>

/// What the measurements share: where things are, the files and commands of one measurement, rounds. Throws
/// std::runtime_error when a program fails. Stands on processes and work folders.
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

/// What a program that watches itself reports.
struct Report {
    /// From the start of the process to the end of its work, less what it does to prepare itself.
    double seconds = 0;
    /// The seconds of the work alone.
    double workSeconds = 0;
    /// What else it tells: numbers whose meaning is the program's.
    std::vector<double> others;
};

/// The files of one measurement and the commands on them.
class Stage
{
public:
    explicit Stage(const Bench& bench) : m_bench(bench), m_memory(bench.memory), m_disk(bench.disk) {}

    std::string inMemory(const std::string& name) const { return m_memory.path(name); }

    std::string onDisk(const std::string& name) const { return m_disk.path(name); }

    ProcessResult run(std::vector<std::string> command) const;

    /// Runs a command of the command line, every question answered with Yes.
    ProcessResult stemwright(std::vector<std::string> command) const;

    /// Runs a program that prints when it began, the seconds of its work, and perhaps more.
    Report measured(const std::vector<std::string>& command) const;

    void writeTree(std::uint32_t individuals, const std::string& path, TreeShape shape = TreeShape::Offspring) const;

private:
    const Bench& m_bench;
    WorkFolder m_memory;
    WorkFolder m_disk;
};

/// Repeats a round as long as the time allows.
template <typename MeasureRound>
std::vector<Round> Repeat(const Bench& bench, MeasureRound measureRound)
{
    constexpr std::size_t fewestRounds = 2;
    constexpr std::size_t mostRounds = 9;
    const Stopwatch watch;
    std::vector<Round> rounds;
    while (rounds.size() < fewestRounds || (rounds.size() < mostRounds && watch.seconds() < bench.secondsPerPair)) {
        rounds.push_back(measureRound());
    }
    return rounds;
}

} // namespace stemwright::bench
