// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtWidgets/QWidget>

#include <functional>

/// Takes pictures of the program's windows while somebody else works them. A window that does not come is told on
/// standard error and counted, and the tour goes on. Stands on Qt Widgets.
namespace stemwright::screenshots
{

using Visit = std::function<void(QWidget&)>;

class Camera
{
public:
    /// Pictures go to `folder`, which must exist.
    explicit Camera(QDir folder) : m_folder(std::move(folder)) {}

    /// Writes NAME.png with what the window shows, its frame left out.
    void take(QWidget& window, const QString& name);

    /// Lets `open` open the modal window of this object name, lets `visit` look at it, and closes it if `visit` has
    /// not.
    void inside(const QString& objectName, const std::function<void()>& open, const Visit& visit);

    /// Opens a modal window and takes a picture, named like the window.
    void takeModal(const QString& objectName, const std::function<void()>& open);

    /// What could not be taken.
    int failures() const { return m_failures; }

private:
    void await(const QString& objectName, const Visit& visit, QDeadlineTimer deadline);
    void fail(const QString& what);

    QDir m_folder;
    int m_failures = 0;
};

/// Lets the windows paint themselves and their timers run out.
void Settle();

} // namespace stemwright::screenshots
