// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <QtCore/QElapsedTimer>
#include <QtWidgets/QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

/// The window of a long work: its step, how far it is, and a button to stop it where that is safe. It keeps itself
/// painted by letting the event loop run at most 25 times a second, whatever the work reports; no other window takes
/// input meanwhile. Nothing here fails.
namespace stemwright
{

class ProgressWindow : public Progress
{
public:
    ProgressWindow(const QString& title, const QString& caption, QWidget* parent);
    ~ProgressWindow() override;

    void setCaption(const QString& caption) override;
    void setPercent(int percent) override;
    /// The button to stop appears when the work asks for the first time: it stands for a place where stopping is safe.
    bool stopWished() override;

private:
    class Window;

    void repaintSometimes();

    std::unique_ptr<Window> m_window;
    QElapsedTimer m_sinceRepaint;
};

} // namespace stemwright
