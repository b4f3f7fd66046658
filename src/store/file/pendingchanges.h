// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/engine/connection.h"

#include <functional>
#include <optional>

/// What stands behind a window in which a row is edited: changes are written at once, but become lasting only when they
/// are saved, and are undone when the object goes. Stands on the connection and the talk port.
namespace stemwright
{

class PendingChanges
{
public:
    explicit PendingChanges(Connection& connection) : m_connection(connection) { begin(); }

    /// Whether anything was written since the last save.
    bool any() const;

    /// Makes all changes lasting. False, after the user was told by `failure`, when the family file cannot be written.
    bool save(Talk& talk, Message (*failure)(const QString& reason));

    /// Asks whether to lose the changes since the last save and undoes them on Yes. False when the answer is No.
    bool cancel(Talk& talk, const Message& question);

    /// Runs a procedure that is a user action of its own, between changes that were saved and those still to come.
    void aside(const std::function<void()>& procedure);

private:
    void begin();

    Connection& m_connection;
    std::optional<Transaction> m_changes;
    int m_writtenBefore = 0;
};

} // namespace stemwright
