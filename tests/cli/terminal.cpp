// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/terminal.h"

#include <array>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace stemwright::test
{

namespace
{

/// Becomes the program; called in the child process.
[[noreturn]] void Become(const CliWorld& world, const QStringList& arguments)
{
    std::vector<QByteArray> words = {STEMWRIGHT_CLI};
    for (const QString& argument : arguments) {
        words.push_back(argument.toUtf8());
    }
    std::vector<char*> pointers;
    for (QByteArray& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    const QProcessEnvironment environment = world.environment();
    for (const QString& variable : environment.keys()) {
        ::setenv(qUtf8Printable(variable), qUtf8Printable(environment.value(variable)), 1);
    }
    ::execv(STEMWRIGHT_CLI, pointers.data());
    ::_exit(127);
}

/// Everything that the terminal shows until its program has gone, or is silent for too long.
QByteArray ReadScreen(int terminal)
{
    QByteArray screen;
    std::array<char, 4096> block{};
    pollfd waiting{terminal, POLLIN, 0};
    while (::poll(&waiting, 1, 30'000) > 0) {
        const ssize_t count = ::read(terminal, block.data(), block.size());
        if (count <= 0) {
            break;
        }
        screen.append(block.data(), static_cast<qsizetype>(count));
    }
    return screen;
}

} // namespace

Outcome RunOnTerminal(const CliWorld& world, const QStringList& arguments, const QByteArray& typed)
{
    int terminal = -1;
    winsize size{};
    size.ws_col = 60;
    size.ws_row = 24;
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        Become(world, arguments);
    }
    if (child < 0 || ::write(terminal, typed.constData(), static_cast<std::size_t>(typed.size())) != typed.size()) {
        return {std::nullopt, {}, QStringLiteral("no terminal to be had")};
    }
    const QByteArray screen = ReadScreen(terminal);
    ::close(terminal);
    int status = 0;
    ::waitpid(child, &status, 0);
    return {WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt, QString::fromUtf8(screen), {}};
}

} // namespace stemwright::test
