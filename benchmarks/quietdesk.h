// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "base/error.h"

/// What a measurement from inside a process needs of the world: a user whom nobody asks, settings that are forgotten,
/// the application's folder. A question throws Error. Stands on base.
namespace stemwright::bench
{

class NoTalk : public Talk
{
public:
    Button ask(const Message& message) override { throw Error(message.text); }

    void tell(const Message& message) override { throw Error(message.text); }

    bool tellWithCheckBox(const Message& message, const QString& /*checkBox*/) override { throw Error(message.text); }

    std::optional<QString> input(const InputRequest& request) override { throw Error(request.prompt); }

    std::optional<QString> chooseFile(const FileRequest& request) override { throw Error(request.title); }

    std::unique_ptr<Progress> progress(const QString& title, const QString& /*caption*/) override
    {
        throw Error(title);
    }
};

struct QuietDesk {
    NoTalk talk;
    MemorySettings settings;
    SystemClock clock;
    ApplicationFolder application = ApplicationFolder::ofProgram();
    Environment environment{talk, settings, clock, application};
};

} // namespace stemwright::bench
