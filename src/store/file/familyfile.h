// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

#include <QtCore/QString>

#include <memory>

/// The open family file: its path and the one connection to it. Procedures that create, open or copy family files are
/// catch boundaries: they report a failure once through Talk and return false. Stands on the schema and on album/.
namespace stemwright
{

class FamilyFile
{
public:
    bool isOpen() const { return m_connection != nullptr; }

    /// The full path; empty when no file is open.
    QString path() const { return m_connection ? m_connection->path() : QString(); }

    /// Must only be called while a file is open.
    Connection& connection() { return *m_connection; }

    void close() { m_connection.reset(); }

    /// Takes over an open connection; a file that was open before is closed.
    void adopt(std::unique_ptr<Connection> connection) { m_connection = std::move(connection); }

private:
    std::unique_ptr<Connection> m_connection;
};

/// Creates a family file with all tables and default rows at `path`, replacing a file that stands there, and opens it.
/// The file is made beside its place and put there when it is whole.
bool CreateFamilyFile(FamilyFile& file, const QString& path, Environment& environment);

/// Opens the family file at `path`. One of an earlier release is upgraded first, with what the user says to that. A
/// file that was open before stays open when this fails or the user would rather not.
bool OpenFamilyFile(FamilyFile& file, const QString& path, Environment& environment);

} // namespace stemwright
