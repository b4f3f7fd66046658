// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// Reading generated photos. Throws std::filesystem::filesystem_error. Stands on nothing.
namespace stemwright::bench
{

/// The contents of all files of a folder, in the order of their names.
inline std::vector<std::string> FilesOf(const std::string& folder)
{
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> contents;
    for (const auto& path : paths) {
        std::ifstream file(path, std::ios::binary);
        contents.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return contents;
}

} // namespace stemwright::bench
