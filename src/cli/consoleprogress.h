// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <chrono>

namespace stemwright
{

/// A progress display on a terminal's last line, which is written over and gone in the end. Repainting is rare however
/// often the work reports. Fails at nothing.
class ConsoleProgress : public Progress
{
public:
    explicit ConsoleProgress(QString caption);
    ConsoleProgress(const ConsoleProgress&) = delete;
    ConsoleProgress& operator=(const ConsoleProgress&) = delete;
    ~ConsoleProgress() override;

    void setCaption(const QString& caption) override;
    void setPercent(int percent) override;

    bool stopWished() override { return false; }

private:
    void paintNowAndThen();

    QString m_caption;
    int m_percent = 0;
    std::chrono::steady_clock::time_point m_nextPaint;
};

/// Clears the terminal's last line for something else to stand there; the next repaint brings the progress back.
void ClearProgressLine();

/// A progress display where there is no terminal to show it on.
class SilentProgress : public Progress
{
public:
    void setCaption(const QString&) override {}

    void setPercent(int) override {}

    bool stopWished() override { return false; }
};

} // namespace stemwright
