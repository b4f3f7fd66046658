// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// The benchmarks' own source of chance, which gives the same numbers on every machine and with every standard library:
/// splitmix64. It cannot fail. Stands on nothing.
namespace stemwright::bench
{

class Random
{
public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }

    /// A number from 0 to `end` - 1. The slight preference for low numbers does not matter here.
    std::uint32_t below(std::uint32_t end) { return static_cast<std::uint32_t>((next() >> 32) * end >> 32); }

    /// A number from `first` to `last`, both included.
    int between(int first, int last)
    {
        return first + static_cast<int>(below(static_cast<std::uint32_t>(last - first + 1)));
    }

    /// True in `permille` of 1,000 cases.
    bool chance(std::uint32_t permille) { return below(1000) < permille; }

private:
    std::uint64_t m_state;
};

} // namespace stemwright::bench
