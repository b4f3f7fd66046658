// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "cli/commandline.h"

namespace stemwright
{

/// Talks on a terminal: questions on standard error, answers from standard input, a progress line when standard error
/// is a terminal. With --yes or --no every question has its answer; where nobody can be asked the message's preset is
/// taken.
class ConsoleTalk : public Talk
{
public:
    explicit ConsoleTalk(const GlobalOptions& options);

    Button ask(const Message& message) override;
    void tell(const Message& message) override;
    std::optional<QString> input(const InputRequest& request) override;
    std::optional<QString> chooseFile(const FileRequest& request) override;
    std::unique_ptr<Progress> progress(const QString& title, const QString& caption) override;

private:
    const GlobalOptions& m_options;
};

} // namespace stemwright
