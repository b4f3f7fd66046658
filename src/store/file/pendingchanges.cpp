// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/pendingchanges.h"

#include "store/engine/engineerror.h"

namespace stemwright
{

void PendingChanges::begin()
{
    m_changes.reset();
    m_changes.emplace(m_connection);
    m_writtenBefore = m_connection.engine().getTotalChanges();
}

bool PendingChanges::any() const
{
    return m_changes && m_connection.engine().getTotalChanges() != m_writtenBefore;
}

bool PendingChanges::save(Talk& talk, Message (*failure)(const QString& reason))
{
    try {
        if (m_changes) {
            m_changes->commit();
        }
        begin();
        return true;
    } catch (const std::exception& exception) {
        talk.tell(failure(ReasonText(exception)));
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

void PendingChanges::aside(const std::function<void()>& procedure)
{
    m_changes.reset();
    procedure();
    begin();
}

} // namespace stemwright
