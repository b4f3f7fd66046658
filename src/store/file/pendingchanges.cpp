// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/pendingchanges.h"

#include "base/error.h"

namespace stemwright
{

bool PendingChanges::save(Talk& talk, Message (*failure)(const QString& reason))
{
    try {
        m_changes->commit();
        m_changes.emplace(m_connection);
        return true;
    } catch (const std::exception& exception) {
        talk.tell(failure(ErrorText(exception)));
        return false;
    }
}

bool PendingChanges::cancel(Talk& talk, const Message& question)
{
    if (talk.ask(question) != Button::Yes) {
        return false;
    }
    m_changes.reset();
    return true;
}

} // namespace stemwright
