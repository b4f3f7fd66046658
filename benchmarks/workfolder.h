// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// The benchmarks' places for files: a fresh folder, best on a tmpfs so that no disk is measured, that goes away with
/// its contents. Throws std::filesystem::filesystem_error. Stands on nothing.
namespace stemwright::bench
{

class WorkFolder
{
public:
    /// Makes a folder with a name of its own inside `parent`.
    explicit WorkFolder(const std::string& parent);
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;
    ~WorkFolder();

    std::string path(const std::string& name) const { return m_path + '/' + name; }

private:
    std::string m_path;
};

/// Deletes a file or a folder with all that is in it and waits until the system has done what it put off: the files
/// that are written next would pay for it.
void RemoveAndSettle(const std::string& path);

/// How many bytes may still be written to the folder's file system.
std::uint64_t FreeBytes(const std::string& folder);

/// How many bytes of memory are free for use.
std::uint64_t FreeMemory();

} // namespace stemwright::bench
