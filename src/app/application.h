// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <QtWidgets/QApplication>

namespace stemwright
{

/// The program's event loop. A failure that no procedure caught, of a disk that is gone, say, ends the action in which
/// it came, is told, and leaves the program running. Stands on Qt Widgets.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    /// How failures are told; `talk` must outlive the event loop.
    void tellThrough(Talk& talk) { m_talk = &talk; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    Talk* m_talk = nullptr;
};

} // namespace stemwright
