// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "cli/commandline.h"

namespace stemwright
{

/// Talks on a terminal: everything on standard error, answers from standard input, a progress line when standard error
/// is a terminal. With --yes or --no every question has its answer; where nobody can be asked, the message's preset is
/// taken. A question is shown together with the answer that was given for the user; with --quiet only when the answer
/// is No or Cancel, since that may be why the command ends.
class ConsoleTalk : public Talk
{
public:
    explicit ConsoleTalk(const GlobalOptions& options);

    Button ask(const Message& message) override;
    void tell(const Message& message) override;
    /// There is nothing to tick on a terminal.
    bool tellWithCheckBox(const Message& message, const QString& checkBox) override;
    /// No value at the end of the input, or where nobody can be asked; an empty line leaves the request's text.
    std::optional<QString> input(const InputRequest& request) override;
    /// No value: commands take their files as arguments.
    std::optional<QString> chooseFile(const FileRequest& request) override;
    /// The work is never wished to stop: an interrupt ends the program at once, and the family file is then as before.
    std::unique_ptr<Progress> progress(const QString& title, const QString& caption) override;

private:
    std::optional<Button> answerGivenBeforehand(const Message& message) const;
    Button askOnTerminal(const Message& message) const;

    const GlobalOptions& m_options;
};

} // namespace stemwright
