// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "figures.h"

#include <algorithm>
#include <cstdio>

namespace stemwright::bench
{

namespace
{

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

template <typename Projection>
double MedianOf(const std::vector<Round>& rounds, Projection projection)
{
    std::vector<double> values;
    std::transform(rounds.begin(), rounds.end(), std::back_inserter(values), projection);
    return Median(std::move(values));
}

std::string Number(const char* format, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string Seconds(double value)
{
    constexpr double fewMilliseconds = 0.01;
    if (value < fewMilliseconds) {
        return Number("%.4f ms", value * 1e3);
    }
    return Number(value < 1 ? "%.4f s" : "%.2f s", value);
}

std::string Megabytes(double bytes)
{
    return Number("%.1f MB", bytes / 1e6);
}

std::string Verdict(double value, double goal)
{
    return value <= goal ? "met" : "missed";
}

} // namespace

std::string Grouped(std::uint32_t number)
{
    std::string digits = std::to_string(number);
    for (std::size_t place = digits.size(); place > 3; place -= 3) {
        digits.insert(place - 3, ",");
    }
    return digits;
}

PairResult Summary(std::uint32_t individuals, const std::vector<Round>& rounds, std::uint64_t peakBytes)
{
    return {individuals,
            MedianOf(rounds, [](const Round& round) { return round.ours; }),
            MedianOf(rounds, [](const Round& round) { return round.limit; }),
            MedianOf(rounds, [](const Round& round) { return round.ours / round.limit; }),
            peakBytes,
            rounds.size()};
}

Table::Table() : m_lines{{"figure", "size", "ours", "limit", "ratio", "goal", "result", "rounds"}} {}

void Table::addResults(const std::string& work, const std::vector<PairResult>& results, const Goals& goals)
{
    for (const PairResult& result : results) {
        addPair(work + ", time", Grouped(result.individuals), result, goals.ratio);
    }
    for (std::size_t larger = 1; larger < results.size(); ++larger) {
        const PairResult& before = results[larger - 1];
        const PairResult& after = results[larger];
        // Below 10,000 the start of the process weighs too much to say anything about growth.
        if (before.individuals < 10'000 || after.individuals != before.individuals * 10) {
            continue;
        }
        const double growth = after.ratio / before.ratio;
        m_lines.push_back({work + ", growth", "to " + Grouped(after.individuals), Number("%.2f", after.ratio),
                           Number("%.2f", before.ratio), Number("%.2f", growth), Number("<= %.2f", goals.growth),
                           Verdict(growth, goals.growth), ""});
    }
    for (const PairResult& result : results) {
        const auto peak = static_cast<double>(result.peakBytes);
        const auto goal =
            static_cast<double>(goals.peakBytes + goals.peakBytesPerIndividual * std::uint64_t{result.individuals});
        m_lines.push_back({work + ", memory", Grouped(result.individuals), Megabytes(peak), "", "",
                           "<= " + Megabytes(goal), Verdict(peak, goal), ""});
    }
}

void Table::addUnmeasured(const std::string& work, const std::string& size, const std::string& reason)
{
    m_lines.push_back({work, size, "not measured: " + reason});
}

void Table::addPair(const std::string& figure, const std::string& size, const PairResult& result, double goal)
{
    m_lines.push_back({figure, size, Seconds(result.ours), Seconds(result.limit), Number("%.2f", result.ratio),
                       Number("<= %.2f", goal), Verdict(result.ratio, goal), std::to_string(result.rounds)});
}

void Table::addTime(const std::string& figure, const std::string& size, double seconds, double goal)
{
    m_lines.push_back({figure, size, Seconds(seconds), "", "", "<= " + Seconds(goal), Verdict(seconds, goal), ""});
}

std::string Table::text() const
{
    std::vector<std::size_t> widths(m_lines.front().size());
    for (const auto& line : m_lines) {
        // A short line ends in a remark, which may run over the columns.
        for (std::size_t column = 0; line.size() == widths.size() && column < line.size(); ++column) {
            widths[column] = std::max(widths[column], line[column].size());
        }
    }
    std::string text;
    for (const auto& line : m_lines) {
        for (std::size_t column = 0; column < line.size(); ++column) {
            const std::size_t width = std::max(widths[column], line[column].size());
            const std::string gap(width - line[column].size(), ' ');
            // The first column is words; the others are numbers, which align at their right end.
            text += column == 0 ? line[column] + gap : "  " + gap + line[column];
        }
        text += '\n';
    }
    return text;
}

} // namespace stemwright::bench
