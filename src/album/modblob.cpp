// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/modblob.h"

#include "base/error.h"
#include "base/files.h"
#include "store/engine/schema.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <sqlite3.h>

#include <array>
#include <limits>

namespace stemwright
{

namespace
{

/// The bytes that one step of a copy moves.
constexpr int chunkSize = 16384;

enum class BlobAccess { Read, Write };

/// The engine's handle on one value, read and written piece by piece.
class IncrementalBlob
{
public:
    IncrementalBlob(Connection& connection, const BlobField& field, BlobAccess access)
    {
        check(sqlite3_blob_open(connection.engine().getHandle(), "main", field.table.toUtf8().constData(),
                                field.column.toUtf8().constData(), field.row, access == BlobAccess::Write ? 1 : 0,
                                &m_blob));
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
    static void check(int result)
    {
        if (result != SQLITE_OK) {
            throw SQLite::Exception(sqlite3_errstr(result), result);
        }
    }

    sqlite3_blob* m_blob = nullptr;
};

ColumnType TypeOf(const BlobField& field)
{
    const ColumnDefinition* column = FindColumn(TableNamed(field.table), field.column);
    return column == nullptr ? ColumnType::Integer : column->type;
}

bool IsLong(ColumnType type)
{
    return type == ColumnType::Binary || type == ColumnType::Memo;
}

/// Throws Error when the row is not there.
void RequireRow(Connection& connection, const BlobField& field)
{
    Statement statement = connection.prepare(QStringLiteral("SELECT 1 FROM \"%1\" WHERE rowid = ?1").arg(field.table));
    if (!statement.bind(1, field.row).step()) {
        throw Error(QStringLiteral("Table %1 has no row %2.").arg(field.table).arg(field.row));
    }
}

/// Whether the row's field is not Null.
bool HoldsValue(Connection& connection, const BlobField& field)
{
    // The engine finds the type of a long value without reading the value.
    Statement statement =
        connection.prepare(QStringLiteral("SELECT 1 FROM \"%1\" WHERE rowid = ?1 AND typeof(\"%2\") <> 'null'")
                               .arg(field.table, field.column));
    return statement.bind(1, field.row).step();
}

/// Gives the field a value of `size` zero bytes, which the copy then overwrites in place.
void Reserve(Connection& connection, const BlobField& field, int size)
{
    Statement statement = connection.prepare(
        QStringLiteral("UPDATE \"%1\" SET \"%2\" = zeroblob(?1) WHERE rowid = ?2").arg(field.table, field.column));
    statement.bind(1, size).bind(2, field.row).run();
}

/// Text cannot be put into place piece by piece: the engine would keep it as bytes.
void LoadText(Connection& connection, QFile& file, const BlobField& field)
{
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        FailToRead(file.fileName(), file.errorString());
    }
    Statement statement = connection.prepare(
        QStringLiteral("UPDATE \"%1\" SET \"%2\" = ?1 WHERE rowid = ?2").arg(field.table, field.column));
    statement.bind(1, QString::fromUtf8(content)).bind(2, field.row).run();
}

void LoadBytes(Connection& connection, QFile& file, const BlobField& field)
{
    if (file.size() > std::numeric_limits<int>::max()) {
        throw Error(
            QStringLiteral("File %1 is too large for a family file.").arg(QDir::toNativeSeparators(file.fileName())));
    }
    const int size = static_cast<int>(file.size());
    Reserve(connection, field, size);
    IncrementalBlob blob(connection, field, BlobAccess::Write);
    std::array<char, chunkSize> buffer{};
    for (int done = 0; done < size;) {
        const int length = static_cast<int>(file.read(buffer.data(), std::min(chunkSize, size - done)));
        if (length <= 0) {
            FailToRead(file.fileName(), file.errorString());
        }
        blob.write(buffer.data(), length, done);
        done += length;
    }
}

void SaveBytes(Connection& connection, const BlobField& field, QFile& file)
{
    IncrementalBlob blob(connection, field, BlobAccess::Read);
    std::array<char, chunkSize> buffer{};
    for (int done = 0; done < blob.size();) {
        const int length = std::min(chunkSize, blob.size() - done);
        blob.read(buffer.data(), length, done);
        if (file.write(buffer.data(), length) != length) {
            FailToWrite(file.fileName(), file.errorString());
        }
        done += length;
    }
}

} // namespace

void LoadFileIntoField(Connection& connection, const QString& fileName, const BlobField& field)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        FailToRead(file.fileName(), file.errorString());
    }
    RequireRow(connection, field);
    const ColumnType type = TypeOf(field);
    if (type == ColumnType::Binary) {
        LoadBytes(connection, file, field);
    } else if (type == ColumnType::Memo) {
        LoadText(connection, file, field);
    }
}

void SaveFieldToFile(Connection& connection, const BlobField& field, const QString& fileName)
{
    RequireRow(connection, field);
    const bool copies = HoldsValue(connection, field) && IsLong(TypeOf(field));
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        FailToWrite(file.fileName(), file.errorString());
    }
    try {
        if (copies) {
            SaveBytes(connection, field, file);
        }
        file.close();
        if (file.error() != QFileDevice::NoError) {
            FailToWrite(file.fileName(), file.errorString());
        }
    } catch (const std::exception&) {
        file.close();
        DiscardFile(fileName);
        throw;
    }
}

} // namespace stemwright
