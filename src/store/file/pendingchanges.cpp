// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/pendingchanges.h"

#include "store/engine/engineerror.h"
#include "store/file/messages.h"

namespace stemwright
{

/// Has the family file in a transaction with all changes, whether or not the engine undid them.
void PendingChanges::open()
{
    if (m_changes && m_connection.inTransaction()) {
        return;
    }
    m_changes.reset();
    m_changes.emplace(m_connection);
    if (!m_changed) {
        return;
    }
    try {
        m_changed->putBack(m_connection);
    } catch (...) {
        m_changes.reset();
        throw;
    }
}

/// After a failure, so that what is shown next are the changes.
void PendingChanges::reopen()
{
    try {
        open();
    } catch (const std::exception&) {
        // The disk still fails. The next change and the next saving try again.
    }
}

void PendingChanges::make(const std::function<void()>& change)
{
    try {
        open();
        change();
        m_changed.emplace(m_connection, m_tables);
    } catch (...) {
        reopen();
        throw;
    }
}

bool PendingChanges::save(Talk& talk, Message (*failure)(const QString& reason))
{
    try {
        if (any()) {
            open();
            m_changes->commit();
        }
    } catch (const std::exception& exception) {
        reopen();
        talk.tell(failure(storemessages::ChangesKept(ReasonText(exception))));
        return false;
    }
    m_changes.reset();
    m_changed.reset();
    return true;
}

bool PendingChanges::cancel(Talk& talk, const Message& question)
{
    if (talk.ask(question) != Button::Yes) {
        return false;
    }
    m_changes.reset();
    m_changed.reset();
    return true;
}

} // namespace stemwright
