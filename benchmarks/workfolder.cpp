// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "workfolder.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

namespace stemwright::bench
{

namespace fs = std::filesystem;

WorkFolder::WorkFolder(const std::string& parent) : m_path(parent + "/stemwright-bench-XXXXXX")
{
    if (mkdtemp(m_path.data()) == nullptr) {
        throw fs::filesystem_error("No folder to work in", parent, std::error_code(errno, std::generic_category()));
    }
}

WorkFolder::~WorkFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

void RemoveAndSettle(const std::string& path)
{
    using std::chrono::microseconds;
    constexpr microseconds atLeast{50'000};
    constexpr microseconds atMost{8'000'000};
    constexpr std::uint64_t microsecondsPerFile = 30;
    const std::uint64_t removed = fs::remove_all(path);
    std::this_thread::sleep_for(std::clamp(microseconds(removed * microsecondsPerFile), atLeast, atMost));
}

std::uint64_t FreeBytes(const std::string& folder)
{
    return fs::space(folder).available;
}

std::uint64_t FreeMemory()
{
    std::uint64_t kilobytes = 0;
    std::ifstream memory("/proc/meminfo");
    for (std::string word; memory >> word;) {
        if (word == "MemAvailable:") {
            memory >> kilobytes;
        }
    }
    return kilobytes * 1024U;
}

} // namespace stemwright::bench
