// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <QtCore/QStringList>

#include <deque>
#include <variant>

namespace stemwright::test
{

/// A user who follows a script: each expected message or input box has its title (or, when it has none, the beginning
/// of its text) and its answer, in order. A question that was not expected fails the test, and so does one that never
/// came.
class ScriptedTalk : public Talk
{
public:
    ScriptedTalk() = default;
    ~ScriptedTalk() override;

    /// Expects a message that is answered with `answer`; told messages are expected in the same way with Button::Ok.
    ScriptedTalk& expect(const QString& title, Button answer = Button::Ok);
    /// Expects an input box; no value stands for Cancel.
    ScriptedTalk& expectInput(const QString& title, const std::optional<QString>& answer);

    /// Wishes to stop the work whose progress display shows a caption that begins so.
    void stopAt(const QString& caption) { m_stopAt = caption; }

    Button ask(const Message& message) override;
    void tell(const Message& message) override;
    /// Ticked when the expected answer is Button::Yes.
    bool tellWithCheckBox(const Message& message, const QString& checkBox) override;
    std::optional<QString> input(const InputRequest& request) override;
    std::optional<QString> chooseFile(const FileRequest& request) override;
    std::unique_ptr<Progress> progress(const QString& title, const QString& caption) override;

    /// What was shown, in order, whole.
    const std::vector<Message>& shown() const { return m_shown; }

    /// All captions that progress displays showed, in order.
    const QStringList& captions() const { return m_captions; }

    /// All values that progress bars were set to, in order.
    const std::vector<int>& percents() const { return m_percents; }

private:
    struct Expectation {
        QString title;
        std::variant<Button, std::optional<QString>> answer;
    };

    class ScriptedProgress;

    std::deque<Expectation> m_expected;
    std::vector<Message> m_shown;
    QStringList m_captions;
    std::vector<int> m_percents;
    QString m_stopAt;
};

} // namespace stemwright::test
