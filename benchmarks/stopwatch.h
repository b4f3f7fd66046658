// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Time for the driver and the limits. It cannot fail. Stands on nothing.
namespace stemwright::bench
{

/// Seconds on the clock that all processes of the machine share and nobody sets.
inline double Now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Runs from its construction on.
class Stopwatch
{
public:
    double seconds() const { return Now() - m_start; }

private:
    double m_start = Now();
};

} // namespace stemwright::bench
