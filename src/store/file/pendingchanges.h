// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/file/keptrows.h"

#include <functional>
#include <optional>

/// What stands behind a window in which a row is edited: changes are written at once, but become lasting only when they
/// are saved, and are undone when the object goes. A full or failing disk, which makes the engine undo all that was not
/// saved, takes none of them away: they are done again. Stands on the connection and the talk port.
namespace stemwright
{

class PendingChanges
{
public:
    /// `tables` are those in which changes are made.
    PendingChanges(Connection& connection, QStringList tables) : m_connection(connection), m_tables(std::move(tables))
    {
    }

    /// Makes a change, which is to be saved later. Whatever it throws passes; the changes before it stay.
    void make(const std::function<void()>& change);

    /// Whether anything was written since the last save.
    bool any() const { return m_changed.has_value(); }

    /// Makes all changes lasting. False, after the user was told by `failure`, when the family file cannot be written;
    /// then they are pending as before.
    bool save(Talk& talk, Message (*failure)(const QString& reason));

    /// Asks whether to lose the changes since the last save and undoes them on Yes. False when the answer is No.
    bool cancel(Talk& talk, const Message& question);

private:
    void open();
    void reopen();

    Connection& m_connection;
    QStringList m_tables;
    std::optional<Transaction> m_changes;
    /// What the tables hold with all changes; none while there are none.
    std::optional<KeptRows> m_changed;
};

} // namespace stemwright
