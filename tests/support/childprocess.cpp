// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "support/childprocess.h"

#include <sys/wait.h>
#include <unistd.h>

namespace stemwright::test
{

int RunInOwnProcess(const std::function<int()>& action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(action());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace stemwright::test
