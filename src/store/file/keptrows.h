// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QStringList>

#include <vector>

/// The rows of some tables, kept in memory while the engine may undo what was not committed. Stands on the connection
/// and fails as it fails.
namespace stemwright
{

class KeptRows
{
public:
    /// Keeps the rows as they stand now.
    KeptRows(Connection& connection, const QStringList& tables);

    /// Makes them the rows of their tables again, in a transaction of the caller's.
    void putBack(Connection& connection) const;

private:
    struct Table {
        QString name;
        QStringList columns;
        std::vector<std::vector<EngineValue>> rows;
    };

    std::vector<Table> m_tables;
};

} // namespace stemwright
