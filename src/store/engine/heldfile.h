// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <SQLiteCpp/Database.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

struct sqlite3_file;

/// A file that is kept from all other programs while something is found out about it or done to what lies beside it.
/// It is locked and read through the engine, because a second way into a file that this program has open would end the
/// locks which the engine has on it. Failures: Error, SQLite::Exception. Stands on base.
namespace stemwright
{

/// Neither reads the file as a database nor plays back a journal that stands beside it, and never changes it.
class HeldFile
{
public:
    /// `path` leads to an existing file of whatever kind.
    explicit HeldFile(const QString& path);
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile();

    /// False when this or another program has the file open as a database.
    bool isHeld() const { return m_held; }

    /// The path that the engine goes by: without links.
    const QString& path() const { return m_path; }

    /// In bytes.
    qint64 size() const;

    /// Up to `length` bytes from `place` on, fewer where the file ends.
    QByteArray read(qint64 place, qint64 length) const;

private:
    SQLite::Database m_database;
    QString m_path;
    sqlite3_file* m_file = nullptr;
    bool m_held = false;
};

} // namespace stemwright
