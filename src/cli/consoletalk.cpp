// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/consoletalk.h"

#include <QtCore/QTextStream>

#include <array>
#include <cstdio>

#include <unistd.h>

namespace stemwright
{

namespace
{

void Print(const QString& text)
{
    QTextStream stream(stderr);
    stream << text;
}

QString ReadLine()
{
    QTextStream stream(stdin);
    return stream.readLine();
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

/// The button that stands for yes or no among those that the message has.
Button FirstOf(const Message& message, const std::array<Button, 2>& candidates)
{
    for (const Button candidate : candidates) {
        if (Has(message, candidate)) {
            return candidate;
        }
    }
    return message.preset;
}

void PrintMessage(const Message& message)
{
    Print((message.title.isEmpty() ? QString() : message.title + QStringLiteral(": ")) + message.text + u'\n');
}

/// A line on the terminal that is written over; silent anywhere else.
class ConsoleProgress : public Progress
{
public:
    ConsoleProgress(QString caption, bool visible) : m_caption(std::move(caption)), m_visible(visible) { show(); }

    ConsoleProgress(const ConsoleProgress&) = delete;
    ConsoleProgress& operator=(const ConsoleProgress&) = delete;

    ~ConsoleProgress() override
    {
        if (m_visible) {
            Print(QStringLiteral("\r\x1b[K"));
        }
    }

    void setCaption(const QString& caption) override
    {
        m_caption = caption;
        show();
    }

    void setPercent(int percent) override
    {
        if (percent != m_percent) {
            m_percent = percent;
            show();
        }
    }

    bool stopWished() override { return false; }

private:
    void show() const
    {
        if (m_visible) {
            Print(QStringLiteral("\r\x1b[K%1 %2%").arg(m_caption).arg(m_percent));
        }
    }

    QString m_caption;
    int m_percent = 0;
    bool m_visible;
};

} // namespace

ConsoleTalk::ConsoleTalk(const GlobalOptions& options) : m_options(options) {}

Button ConsoleTalk::ask(const Message& message)
{
    if (m_options.answers == Answers::Yes) {
        return FirstOf(message, {Button::Yes, Button::Ok});
    }
    if (m_options.answers == Answers::No) {
        return FirstOf(message, {Button::No, Button::Cancel});
    }
    PrintMessage(message);
    if (::isatty(STDIN_FILENO) == 0) {
        return message.preset;
    }
    QStringList captions;
    for (const Button button : message.buttons) {
        captions << Caption(button);
    }
    while (true) {
        Print(QStringLiteral("[%1] (%2): ").arg(captions.join(u'/'), Caption(message.preset)));
        const QString answer = ReadLine().trimmed();
        if (answer.isEmpty()) {
            return message.preset;
        }
        for (const Button button : message.buttons) {
            if (Caption(button).startsWith(answer, Qt::CaseInsensitive)) {
                return button;
            }
        }
    }
}

void ConsoleTalk::tell(const Message& message)
{
    const bool failure = message.icon == Icon::Critical || message.icon == Icon::Warning;
    if (failure || !m_options.quiet) {
        PrintMessage(message);
    }
}

std::optional<QString> ConsoleTalk::input(const InputRequest& request)
{
    if (::isatty(STDIN_FILENO) == 0 || m_options.answers != Answers::Ask) {
        return std::nullopt;
    }
    Print(QStringLiteral("%1 [%2]: ").arg(request.prompt, request.text));
    const QString answer = ReadLine();
    return answer.isEmpty() ? request.text : answer;
}

std::optional<QString> ConsoleTalk::chooseFile(const FileRequest&)
{
    return std::nullopt;
}

std::unique_ptr<Progress> ConsoleTalk::progress(const QString&, const QString& caption)
{
    return std::make_unique<ConsoleProgress>(caption, ::isatty(STDERR_FILENO) != 0 && !m_options.quiet);
}

} // namespace stemwright
