// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/picturerecord.h"

#include "base/error.h"
#include "base/text.h"
#include "store/engine/schema.h"

#include <QtCore/QStringList>

namespace stemwright
{

namespace
{

/// The columns of a record that lists show, in the order in which they are read. All of them stand in an index, so that
/// a list never steps over a picture.
const QString listColumns = QStringLiteral(
    "PicId, Title, Place, PictureDate, EncodPicDate, NamesLeft, Rectangle, PicFilename, ModificationDate");
constexpr int listColumnCount = 9;

PictureRecord RecordOf(const Statement& row)
{
    PictureRecord record;
    record.id = row.integer(0);
    record.title = row.text(1);
    record.place = row.text(2);
    record.date = row.text(3);
    record.encodedDate = row.text(4);
    record.names = row.integer(5) == 0 ? NamePlacement::Above : NamePlacement::Left;
    record.pointer = row.integer(6) == 0 ? PointerTool::Arrow : PointerTool::Rectangle;
    record.filename = row.text(7);
    record.modified = row.text(8);
    return record;
}

void RequireShortTexts(const PictureRecord& record)
{
    RequireShortText(record.title, QStringLiteral("The title"));
    RequireShortText(record.place, QStringLiteral("The place"));
    RequireShortText(record.date, QStringLiteral("The date"));
    RequireShortText(record.filename, QStringLiteral("The name of the picture file"));
}

int YesNo(bool value)
{
    return value ? -1 : 0;
}

void WriteContent(Connection& connection, int id, const PictureRecord& record, const PictureContent& content)
{
    Statement update = connection.prepare(
        QStringLiteral("UPDATE AlbumTOC SET Picture = ?2, Thumb = ?3, PicType = ?4, PicFilename = ?5, PicWidth = ?6, "
                       "PicHeight = ?7 WHERE PicId = ?1"));
    update.bind(1, id);
    if (!content.picture.isNull()) {
        update.bindBytes(2, content.picture).bindBytes(3, content.thumbnail);
        update.bind(4, record.type).bind(5, record.filename);
        update.bind(6, record.size.width()).bind(7, record.size.height());
    }
    update.run();
}

/// What a picture of an earlier release may take, by far.
constexpr qint64 largestStored = 256LL * 1024 * 1024;

QByteArray StoredBytes(Connection& connection, const QString& column, int pictureId)
{
    Statement size =
        connection.prepare(QStringLiteral("SELECT coalesce(length(%1), 0) FROM AlbumTOC WHERE PicId = ?1").arg(column));
    if (!size.bind(1, pictureId).step() || size.integer64(0) == 0) {
        return {};
    }
    if (size.integer64(0) > largestStored) {
        throw Error(QStringLiteral("Picture %1 is too large to be shown.").arg(pictureId));
    }
    Statement select = connection.prepare(QStringLiteral("SELECT %1 FROM AlbumTOC WHERE PicId = ?1").arg(column));
    return select.bind(1, pictureId).step() ? select.bytes(0) : QByteArray();
}

} // namespace

std::optional<PictureRecord> FindPictureRecord(Connection& connection, int pictureId)
{
    Statement select = connection.prepare(
        QStringLiteral("SELECT %1, PicDescr, PicType, PicWidth, PicHeight FROM AlbumTOC WHERE PicId = ?1")
            .arg(listColumns));
    if (!select.bind(1, pictureId).step()) {
        return std::nullopt;
    }
    PictureRecord record = RecordOf(select);
    record.description = select.text(listColumnCount);
    record.type = select.text(listColumnCount + 1);
    record.size = QSize(select.integer(listColumnCount + 2), select.integer(listColumnCount + 3));
    return record;
}

PictureRecord LoadPictureRecord(Connection& connection, int pictureId)
{
    if (std::optional<PictureRecord> record = FindPictureRecord(connection, pictureId)) {
        return *record;
    }
    throw Error(QStringLiteral("The family file has no picture with the ID %1.").arg(pictureId));
}

std::vector<PictureRecord> ListPictures(Connection& connection)
{
    // Sorting by an expression lets the engine read the index alone; in the order of the column it would read the rows.
    Statement select = connection.prepare(QStringLiteral("SELECT %1 FROM AlbumTOC ORDER BY +PicId").arg(listColumns));
    std::vector<PictureRecord> records;
    while (select.step()) {
        records.push_back(RecordOf(select));
    }
    return records;
}

QByteArray StoredPicture(Connection& connection, int pictureId)
{
    return StoredBytes(connection, QStringLiteral("Picture"), pictureId);
}

QByteArray StoredThumbnail(Connection& connection, int pictureId)
{
    return StoredBytes(connection, QStringLiteral("Thumb"), pictureId);
}

QStringList KnownPlaces(Connection& connection)
{
    Statement select = connection.prepareJet(
        QStringLiteral("SELECT Place FROM AlbumTOC GROUP BY Place HAVING Place <> '' ORDER BY Place"));
    QStringList places;
    while (select.step()) {
        places << select.text(0);
    }
    return places;
}

int WritePictureRecord(Connection& connection, const PictureRecord& record,
                       const std::optional<PictureContent>& content)
{
    RequireShortTexts(record);
    Statement write = connection.prepare(
        record.id == 0
            ? QStringLiteral("INSERT INTO AlbumTOC (Title, PicDescr, Place, PictureDate, EncodPicDate, NamesLeft, "
                             "Rectangle, ModificationDate) VALUES (?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)")
            : QStringLiteral("UPDATE AlbumTOC SET Title = ?2, PicDescr = ?3, Place = ?4, PictureDate = ?5, "
                             "EncodPicDate = ?6, NamesLeft = ?7, Rectangle = ?8, ModificationDate = ?9 "
                             "WHERE PicId = ?1"));
    if (record.id != 0) {
        write.bind(1, record.id);
    }
    write.bind(2, record.title).bind(3, record.description).bind(4, record.place).bind(5, record.date);
    write.bind(6, record.encodedDate).bind(7, YesNo(record.names == NamePlacement::Left));
    write.bind(8, YesNo(record.pointer == PointerTool::Rectangle)).bind(9, record.modified);
    if (write.run() != 1) {
        throw Error(QStringLiteral("The family file no longer has a picture with the ID %1.").arg(record.id));
    }
    const int id = record.id == 0 ? static_cast<int>(connection.lastInsertId()) : record.id;
    if (content) {
        WriteContent(connection, id, record, *content);
    }
    return id;
}

void RemovePictureRecord(Connection& connection, int pictureId)
{
    Transaction transaction(connection);
    for (const char* table : {"Pic2Person", "AlbumTOC"}) {
        connection.prepare(QStringLiteral("DELETE FROM %1 WHERE PicId = ?1").arg(QString::fromLatin1(table)))
            .bind(1, pictureId)
            .run();
    }
    transaction.commit();
}

} // namespace stemwright
