// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// What the benchmarks found, against the goals, and the table that shows it. It cannot fail. Stands on nothing.
namespace stemwright::bench
{

/// One pair measured at one size: Stemwright's own work and the least that it could take.
struct PairResult {
    std::uint32_t individuals = 0;
    /// Medians over the rounds, in seconds.
    double ours = 0;
    double limit = 0;
    /// The median of the rounds' ratios.
    double ratio = 0;
    std::uint64_t peakBytes = 0;
    std::size_t rounds = 0;
};

/// The seconds of our work and of its limit, measured one right after the other.
struct Round {
    double ours = 0;
    double limit = 0;
};

/// What one figure of a kind of work may be at most.
struct Goals {
    double ratio = 0;
    /// The ratio at ten times the people against the ratio before.
    double growth = 0;
    std::uint64_t peakBytes = 0;
    std::uint64_t peakBytesPerIndividual = 0;
};

PairResult Summary(std::uint32_t individuals, const std::vector<Round>& rounds, std::uint64_t peakBytes);

/// A number with commas between its thousands.
std::string Grouped(std::uint32_t number);

/// Collects lines and prints them in columns.
class Table
{
public:
    Table();

    /// The lines of one kind of work: the ratio at each size, its growth from each size to ten times it, and the peaks.
    void addResults(const std::string& work, const std::vector<PairResult>& results, const Goals& goals);
    void addUnmeasured(const std::string& work, const std::string& size, const std::string& reason);

    /// A line of a pair that is measured at one size only.
    void addPair(const std::string& figure, const std::string& size, const PairResult& result, double goal);
    /// A line of seconds that should be few whatever the limit of the machine.
    void addTime(const std::string& figure, const std::string& size, double seconds, double goal);

    std::string text() const;

private:
    std::vector<std::vector<std::string>> m_lines;
};

} // namespace stemwright::bench
