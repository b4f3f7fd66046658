// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/engine/heldfile.h"

#include <SQLiteCpp/Exception.h>

#include <sqlite3.h>

#include <algorithm>

namespace stemwright
{

namespace
{

void Require(int result)
{
    if (result != SQLITE_OK) {
        throw SQLite::Exception(sqlite3_errstr(result), result);
    }
}

} // namespace

HeldFile::HeldFile(const QString& path)
    : m_database(path.toUtf8().constData(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX),
      m_path(QString::fromUtf8(sqlite3_db_filename(m_database.getHandle(), "main")))
{
    Require(sqlite3_file_control(m_database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &m_file));
    // The engine goes this way, too, before it plays back a journal.
    m_held = m_file->pMethods->xLock(m_file, SQLITE_LOCK_SHARED) == SQLITE_OK &&
             m_file->pMethods->xLock(m_file, SQLITE_LOCK_EXCLUSIVE) == SQLITE_OK;
}

HeldFile::~HeldFile()
{
    m_file->pMethods->xUnlock(m_file, SQLITE_LOCK_NONE);
}

qint64 HeldFile::size() const
{
    sqlite3_int64 size = 0;
    Require(m_file->pMethods->xFileSize(m_file, &size));
    return size;
}

QByteArray HeldFile::read(qint64 place, qint64 length) const
{
    QByteArray bytes(std::clamp<qint64>(size() - place, 0, length), Qt::Uninitialized);
    if (!bytes.isEmpty()) {
        Require(m_file->pMethods->xRead(m_file, bytes.data(), static_cast<int>(bytes.size()), place));
    }
    return bytes;
}

} // namespace stemwright
