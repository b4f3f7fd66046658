// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace stemwright::bench
{

/// Runs from its construction on.
class Stopwatch
{
public:
    double seconds() const { return std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count(); }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace stemwright::bench
