// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Runs other programs and says what they took. Throws std::runtime_error, with what the program wrote to its standard
/// error, when a program cannot be started or ends with another status than 0. Stands on nothing.
namespace stemwright::bench
{

struct ProcessResult {
    /// When the process was started, on the clock of stopwatch.h.
    double started = 0;
    /// From then to its end.
    double seconds = 0;
    /// The largest part of memory that the process held at any time.
    std::uint64_t peakBytes = 0;
    std::string output;
};

/// Runs a program, the first of `command`, to its end with no standard input. `scratch` is a folder for its output.
ProcessResult RunProcess(const std::vector<std::string>& command, const std::string& scratch);

} // namespace stemwright::bench
