// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "support/scriptedtalk.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

/// Whether an expectation's title fits what is shown.
bool Fits(const QString& expected, const QString& title, const QString& text)
{
    return title.isEmpty() ? text.startsWith(expected) : title == expected;
}

} // namespace

class ScriptedTalk::ScriptedProgress : public Progress
{
public:
    explicit ScriptedProgress(ScriptedTalk& talk) : m_talk(talk) {}

    void setCaption(const QString& caption) override { m_talk.m_captions << caption; }

    void setPercent(int percent) override { m_talk.m_percents.push_back(percent); }

    bool stopWished() override
    {
        return !m_talk.m_stopAt.isEmpty() && m_talk.m_captions.back().startsWith(m_talk.m_stopAt);
    }

private:
    ScriptedTalk& m_talk;
};

ScriptedTalk::~ScriptedTalk()
{
    for (const Expectation& expectation : m_expected) {
        ADD_FAILURE() << "never shown: " << expectation.title.toStdString();
    }
}

ScriptedTalk& ScriptedTalk::expect(const QString& title, Button answer)
{
    m_expected.push_back({title, answer});
    return *this;
}

ScriptedTalk& ScriptedTalk::expectInput(const QString& title, const std::optional<QString>& answer)
{
    m_expected.push_back({title, answer});
    return *this;
}

Button ScriptedTalk::ask(const Message& message)
{
    m_shown.push_back(message);
    if (m_expected.empty() || !Fits(m_expected.front().title, message.title, message.text)) {
        ADD_FAILURE() << "not expected: " << message.title.toStdString() << ": " << message.text.toStdString();
        return message.preset;
    }
    const Button* answer = std::get_if<Button>(&m_expected.front().answer);
    const Button chosen = answer != nullptr ? *answer : message.preset;
    EXPECT_NE(std::find(message.buttons.begin(), message.buttons.end(), chosen), message.buttons.end())
        << message.title.toStdString() << " has no such button";
    m_expected.pop_front();
    return chosen;
}

void ScriptedTalk::tell(const Message& message)
{
    ask(message);
}

bool ScriptedTalk::tellWithCheckBox(const Message& message, const QString&)
{
    Message asked = message;
    asked.buttons.push_back(Button::Yes);
    return ask(asked) == Button::Yes;
}

std::optional<QString> ScriptedTalk::input(const InputRequest& request)
{
    if (m_expected.empty() || !Fits(m_expected.front().title, request.title, request.prompt)) {
        ADD_FAILURE() << "not expected: " << request.title.toStdString() << ": " << request.prompt.toStdString();
        return std::nullopt;
    }
    const auto* answer = std::get_if<std::optional<QString>>(&m_expected.front().answer);
    std::optional<QString> typed = answer != nullptr ? *answer : std::nullopt;
    m_expected.pop_front();
    return typed;
}

std::optional<QString> ScriptedTalk::chooseFile(const FileRequest& request)
{
    return input({request.title, {}, {}});
}

std::unique_ptr<Progress> ScriptedTalk::progress(const QString&, const QString& caption)
{
    m_captions << caption;
    return std::make_unique<ScriptedProgress>(*this);
}

} // namespace stemwright::test
