// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/modblob.h"

#include "base/error.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sqlite3.h>

#include <array>
#include <limits>

namespace stemwright
{

namespace
{

/// The engine's handle on one value, read and written piece by piece.
class IncrementalBlob
{
public:
    IncrementalBlob(Connection& connection, const BlobField& field, int writable)
        : m_database(connection.engine().getHandle())
    {
        check(sqlite3_blob_open(m_database, "main", field.table.toUtf8().constData(), field.column.toUtf8().constData(),
                                field.row, writable, &m_blob));
    }

    IncrementalBlob(const IncrementalBlob&) = delete;
    IncrementalBlob& operator=(const IncrementalBlob&) = delete;

    ~IncrementalBlob() { sqlite3_blob_close(m_blob); }

    int size() const { return sqlite3_blob_bytes(m_blob); }

    void read(char* buffer, int length, int offset) { check(sqlite3_blob_read(m_blob, buffer, length, offset)); }

    void write(const char* buffer, int length, int offset)
    {
        check(sqlite3_blob_write(m_blob, buffer, length, offset));
    }

private:
    void check(int result)
    {
        if (result != SQLITE_OK) {
            throw SQLite::Exception(m_database, result);
        }
    }

    sqlite3* m_database;
    sqlite3_blob* m_blob = nullptr;
};

[[noreturn]] void FailWith(const QString& text, const QFile& file)
{
    throw Error(text.arg(QDir::toNativeSeparators(file.fileName()), file.errorString()));
}

/// Gives the field a value of `size` zero bytes, which the copy then overwrites in place.
void Reserve(Connection& connection, const BlobField& field, int size)
{
    Statement statement = connection.prepare(
        QStringLiteral("UPDATE \"%1\" SET \"%2\" = zeroblob(?1) WHERE rowid = ?2").arg(field.table, field.column));
    if (statement.bind(1, size).bind(2, field.row).run() != 1) {
        throw Error(QStringLiteral("Table %1 has no row %2.").arg(field.table).arg(field.row));
    }
}

bool IsNull(Connection& connection, const BlobField& field)
{
    Statement statement = connection.prepare(
        QStringLiteral("SELECT 1 FROM \"%1\" WHERE rowid = ?1 AND \"%2\" IS NOT NULL").arg(field.table, field.column));
    return !statement.bind(1, field.row).step();
}

} // namespace

void LoadFileIntoField(Connection& connection, const QString& fileName, const BlobField& field)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        FailWith(QStringLiteral("Cannot read file %1: %2."), file);
    }
    if (file.size() > std::numeric_limits<int>::max()) {
        throw Error(QStringLiteral("File %1 is too large for a family file.").arg(QDir::toNativeSeparators(fileName)));
    }
    const int size = static_cast<int>(file.size());
    Reserve(connection, field, size);
    IncrementalBlob blob(connection, field, 1);
    std::array<char, blobChunkSize> buffer{};
    for (int done = 0; done < size;) {
        const int length = static_cast<int>(file.read(buffer.data(), std::min(blobChunkSize, size - done)));
        if (length <= 0) {
            FailWith(QStringLiteral("Cannot read file %1: %2."), file);
        }
        blob.write(buffer.data(), length, done);
        done += length;
    }
}

void SaveFieldToFile(Connection& connection, const BlobField& field, const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        FailWith(QStringLiteral("Cannot write file %1: %2."), file);
    }
    if (IsNull(connection, field)) {
        return;
    }
    IncrementalBlob blob(connection, field, 0);
    std::array<char, blobChunkSize> buffer{};
    for (int done = 0; done < blob.size();) {
        const int length = std::min(blobChunkSize, blob.size() - done);
        blob.read(buffer.data(), length, done);
        if (file.write(buffer.data(), length) != length) {
            FailWith(QStringLiteral("Cannot write file %1: %2."), file);
        }
        done += length;
    }
    if (!file.flush()) {
        FailWith(QStringLiteral("Cannot write file %1: %2."), file);
    }
}

} // namespace stemwright
