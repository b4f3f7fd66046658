// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "process.h"

#include "stopwatch.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace stemwright::bench
{

namespace
{

constexpr mode_t ownFile = 0600;

std::string Contents(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

/// Where the standard streams of the process lead.
class Streams
{
public:
    explicit Streams(const std::string& scratch) : m_output(scratch + "/stdout"), m_errors(scratch + "/stderr")
    {
        constexpr int fresh = O_WRONLY | O_CREAT | O_TRUNC;
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, m_output.c_str(), fresh, ownFile);
        posix_spawn_file_actions_addopen(&m_actions, STDERR_FILENO, m_errors.c_str(), fresh, ownFile);
    }

    Streams(const Streams&) = delete;
    Streams& operator=(const Streams&) = delete;

    ~Streams() { posix_spawn_file_actions_destroy(&m_actions); }

    const posix_spawn_file_actions_t* actions() const { return &m_actions; }

    std::string output() const { return Contents(m_output); }

    std::string errors() const { return Contents(m_errors); }

private:
    std::string m_output;
    std::string m_errors;
    posix_spawn_file_actions_t m_actions{};
};

} // namespace

ProcessResult RunProcess(const std::vector<std::string>& command, const std::string& scratch)
{
    const Streams streams(scratch);
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);

    const double started = Now();
    pid_t process = 0;
    const int failure = posix_spawnp(&process, arguments[0], streams.actions(), nullptr, arguments.data(), environ);
    if (failure != 0) {
        throw std::runtime_error(command[0] + ": " + std::strerror(failure));
    }
    int status = 0;
    rusage usage{};
    while (wait4(process, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    ProcessResult result{started, Now() - started, static_cast<std::uint64_t>(usage.ru_maxrss) * 1024U,
                         streams.output()};
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::string line;
        for (const std::string& argument : command) {
            line += argument + ' ';
        }
        throw std::runtime_error(line + "failed:\n" + streams.errors() + result.output);
    }
    return result;
}

} // namespace stemwright::bench
