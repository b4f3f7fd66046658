// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/consoleprogress.h"

#include "cli/standarderror.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace stemwright
{

namespace
{

constexpr std::chrono::milliseconds betweenPaints{100};

/// The terminal's width in characters. A line that is longer would go on in the next one and could not be written over.
int TerminalWidth()
{
    winsize size{};
    const bool known = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 80;
}

} // namespace

ConsoleProgress::ConsoleProgress(QString caption) : m_caption(std::move(caption))
{
    paintNowAndThen();
}

ConsoleProgress::~ConsoleProgress()
{
    ClearProgressLine();
}

void ConsoleProgress::setCaption(const QString& caption)
{
    m_caption = caption;
    paintNowAndThen();
}

void ConsoleProgress::setPercent(int percent)
{
    m_percent = percent;
    paintNowAndThen();
}

void ConsoleProgress::paintNowAndThen()
{
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextPaint) {
        return;
    }
    m_nextPaint = now + betweenPaints;
    const QString percent = QStringLiteral(" %1%").arg(m_percent);
    const qsizetype room = TerminalWidth() - 1 - percent.size();
    ClearProgressLine();
    PrintError(m_caption.simplified().left(room) + percent);
}

void ClearProgressLine()
{
    PrintError(QStringLiteral("\r\x1b[K"));
}

} // namespace stemwright
