// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/application.h"

#include "app/common/messages.h"
#include "store/engine/engineerror.h"

namespace stemwright
{

bool Application::notify(QObject* receiver, QEvent* event)
{
    QString reason;
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& exception) {
        reason = ReasonText(exception);
    }
    // Told after the handler is left: the message lets the event loop run.
    if (m_talk != nullptr) {
        m_talk->tell(appmessages::Failed(reason));
    }
    return true;
}

} // namespace stemwright
