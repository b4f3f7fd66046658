// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/consoletalk.h"

#include "cli/consoleprogress.h"
#include "cli/standarderror.h"

#include <iostream>

#include <unistd.h>

namespace stemwright
{

namespace
{

bool IsTerminal(int descriptor)
{
    return ::isatty(descriptor) != 0;
}

/// A line of standard input; no value at its end.
std::optional<QString> ReadLine()
{
    std::string line;
    if (!std::getline(std::cin, line)) {
        PrintError(QStringLiteral("\n"));
        return std::nullopt;
    }
    return QString::fromLocal8Bit(line.data(), static_cast<qsizetype>(line.size()));
}

QString Caption(Button button)
{
    switch (button) {
    case Button::Ok:
        return QStringLiteral("OK");
    case Button::Cancel:
        return QStringLiteral("Cancel");
    case Button::Yes:
        return QStringLiteral("Yes");
    case Button::No:
        return QStringLiteral("No");
    case Button::Retry:
        return QStringLiteral("Retry");
    }
    return {};
}

bool Has(const Message& message, Button button)
{
    return std::find(message.buttons.begin(), message.buttons.end(), button) != message.buttons.end();
}

/// The button that stands for an answer among those that the message has, otherwise its preset.
Button FirstOf(const Message& message, std::initializer_list<Button> candidates)
{
    const auto* found = std::find_if(candidates.begin(), candidates.end(),
                                     [&message](Button candidate) { return Has(message, candidate); });
    return found != candidates.end() ? *found : message.preset;
}

/// The captions as a choice, "Yes, No or Cancel".
QString Choice(const Message& message)
{
    QStringList captions;
    for (const Button button : message.buttons) {
        captions << Caption(button);
    }
    const QString last = captions.takeLast();
    return captions.isEmpty() ? last : captions.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
}

/// The button whose caption begins with what was typed.
std::optional<Button> ButtonTyped(const Message& message, const QString& typed)
{
    for (const Button button : message.buttons) {
        if (Caption(button).startsWith(typed, Qt::CaseInsensitive)) {
            return button;
        }
    }
    return std::nullopt;
}

void PrintMessage(const Message& message)
{
    if (IsTerminal(STDERR_FILENO)) {
        ClearProgressLine();
    }
    const QString title = message.title.isEmpty() ? QString() : message.title + u'\n';
    PrintError(title + message.text.trimmed() + u'\n');
}

void PrintPrompt(const Message& message)
{
    PrintError(QStringLiteral("%1? [%2] ").arg(Choice(message), Caption(message.preset)));
}

} // namespace

ConsoleTalk::ConsoleTalk(const GlobalOptions& options) : m_options(options) {}

std::optional<Button> ConsoleTalk::answerGivenBeforehand(const Message& message) const
{
    switch (m_options.answers) {
    case Answers::Yes:
        return FirstOf(message, {Button::Yes, Button::Ok});
    case Answers::No:
        return FirstOf(message, {Button::No, Button::Cancel});
    case Answers::Ask:
        break;
    }
    return IsTerminal(STDIN_FILENO) ? std::nullopt : std::optional(message.preset);
}

Button ConsoleTalk::askOnTerminal(const Message& message) const
{
    PrintMessage(message);
    while (true) {
        PrintPrompt(message);
        const std::optional<QString> typed = ReadLine();
        if (!typed || typed->trimmed().isEmpty()) {
            return message.preset;
        }
        if (const std::optional<Button> chosen = ButtonTyped(message, typed->trimmed())) {
            return *chosen;
        }
    }
}

Button ConsoleTalk::ask(const Message& message)
{
    const std::optional<Button> given = answerGivenBeforehand(message);
    if (!given) {
        return askOnTerminal(message);
    }
    if (!m_options.quiet || *given == Button::No || *given == Button::Cancel) {
        PrintMessage(message);
        PrintPrompt(message);
        PrintError(Caption(*given) + u'\n');
    }
    return *given;
}

void ConsoleTalk::tell(const Message& message)
{
    const bool failure = message.icon == Icon::Critical || message.icon == Icon::Warning;
    if (failure || !m_options.quiet) {
        PrintMessage(message);
    }
}

bool ConsoleTalk::tellWithCheckBox(const Message& message, const QString&)
{
    tell(message);
    return false;
}

std::optional<QString> ConsoleTalk::input(const InputRequest& request)
{
    PrintError(QStringLiteral("%1 [%2] ").arg(request.prompt, request.text));
    if (!IsTerminal(STDIN_FILENO) || m_options.answers != Answers::Ask) {
        PrintError(QStringLiteral("\n"));
        return std::nullopt;
    }
    const std::optional<QString> typed = ReadLine();
    return typed && typed->isEmpty() ? request.text : typed;
}

std::optional<QString> ConsoleTalk::chooseFile(const FileRequest&)
{
    return std::nullopt;
}

std::unique_ptr<Progress> ConsoleTalk::progress(const QString&, const QString& caption)
{
    if (m_options.quiet || !IsTerminal(STDERR_FILENO)) {
        return std::make_unique<SilentProgress>();
    }
    return std::make_unique<ConsoleProgress>(caption);
}

} // namespace stemwright
