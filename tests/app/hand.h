// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtTest/QTest>
#include <QtWidgets/QMessageBox>

#include <gtest/gtest.h>

#include <deque>

namespace stemwright::test
{

/// The control of a window with this object name; ends the test when there is none.
template <typename Control>
Control& Find(QObject& window, const char* name)
{
    auto* control = window.findChild<Control*>(name);
    if (control == nullptr) {
        throw std::runtime_error(std::string("There is no control named ") + name);
    }
    return *control;
}

/// Clicks a button or triggers an action, which must be enabled.
void Press(QObject& window, const char* name);

/// Replaces the text of a control by keys, as a hand does; ends with Tab so that the control notices.
void Type(QWidget& window, const char* name, const QString& text);

/// Chooses an entry of a drop-down list by its text.
void Choose(QWidget& window, const char* name, const QString& entry);

/// The rows of a list or grid as its user sees them, cells separated by "|".
QStringList Shown(QWidget& window, const char* name);

/// The row in which a list or grid is.
int CurrentRow(QWidget& window, const char* name);

/// Clicks the caption of a column.
void ClickHeader(QWidget& window, const char* name, int section);

/// The letters that are pressed with Alt for the menus and controls of a window that are in sight.
QStringList AccessKeys(const QWidget& window);

/// Lets the event loop run until something is so. QTest::qWaitFor sleeps between its looks, and a browser, whose work
/// comes in many small pieces, with it. False when it takes too long.
bool Await(const std::function<bool()>& condition);

/// The user before the modal windows. What he does with each is said before it comes up, in the order in which they
/// do. A window that nobody foretold, one that never comes and one that stays open fail the test; none makes it hang.
class Hand : public QObject
{
public:
    using Action = std::function<void(QWidget&)>;

    Hand();
    ~Hand() override;

    /// The next window has this object name; `act` ends with its being closed.
    void at(const QString& name, Action act);
    /// Closes the next window by one of its buttons.
    void press(const QString& name, const char* button);
    /// The next message has this title, or this beginning of its text.
    void answer(const QString& message, QMessageBox::StandardButton button = QMessageBox::Ok);
    /// The next input box has this title; no value cancels it.
    void enter(const QString& title, const std::optional<QString>& text);
    /// The next file dialog has this title; an empty path cancels it.
    void choose(const QString& title, const QString& path);

    /// Does something during which any windows may come up; they are closed. Returns how many of them
    /// were messages.
    int whateverComes(const std::function<void()>& action);

    /// Lets the windows come that are foretold.
    void wait();

private:
    struct Expected {
        QString window;
        Action act;
    };

    void look();
    void deal(QWidget& window);

    std::deque<Expected> m_expected;
    std::vector<QWidget*> m_busy;
    /// How many messages came while any may come.
    std::optional<int> m_any;
};

} // namespace stemwright::test
