// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/pictures/picturefiles.h"

#include "album/imagemetadata.h"
#include "album/modblob.h"
#include "base/error.h"
#include "base/files.h"
#include "dates/encodeddate.h"

#include <QtCore/QDateTime>

namespace stemwright
{

namespace
{

/// Up to this size, in bytes, a picture is copied in one piece, if it is copied as it is.
constexpr int largestPiece = 1 << 20;

/// A file name's end, "jpg", from a type that may hold anything.
std::string Extension(std::string_view type)
{
    const bool usable = !type.empty() && std::all_of(type.begin(), type.end(), [](char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
               (character >= '0' && character <= '9');
    });
    return usable ? std::string(type) : "jpg";
}

std::string DayOf(const QString& modified)
{
    const QDate day = QDateTime::fromString(modified, Qt::ISODate).date();
    if (!day.isValid()) {
        return modified.toStdString();
    }
    return DateText(DateQualifier::Exact, day.day(), day.month(), day.year()).trimmed().toStdString();
}

bool HidesPersons(const SiteRun& run)
{
    return run.settings.protectedPersons == ProtectedPersons::Hidden;
}

} // namespace

PictureFilesWriter::PictureFilesWriter(const SiteRun& run, Connection& connection)
    : m_run(run), m_connection(connection),
      m_select(connection.prepare(
          QStringLiteral("SELECT PicType, trim(PicDescr), ModificationDate, NamesLeft, Rectangle, PicWidth, PicHeight,"
                         " Thumb, CASE WHEN length(Picture) <= %1 THEN Picture END FROM AlbumTOC WHERE PicId = ?1")
              .arg(HidesPersons(run) ? std::numeric_limits<int>::max() : largestPiece)))
{
}

PictureFiles PictureFilesWriter::write(const PublishedPicture& picture)
{
    if (!m_select.bind(1, picture.id).step()) {
        throw Error(QStringLiteral("The family file no longer has a picture with the ID %1.").arg(picture.id));
    }
    PictureFiles files;
    const std::string id = std::to_string(picture.id);
    files.picture = "Pic" + id + '.' + Extension(m_select.utf8(0));
    files.description = m_select.utf8(1);
    files.modified = DayOf(m_select.text(2));
    files.names = m_select.integer(3) == 0 ? NamePlacement::Above : NamePlacement::Left;
    files.pointer = m_select.integer(4) == 0 ? PointerTool::Arrow : PointerTool::Rectangle;
    files.size = QSize(m_select.integer(5), m_select.integer(6));
    if (const QByteArray thumbnail = m_select.rawBytes(7); !thumbnail.isEmpty()) {
        files.thumbnail = "Thumb_" + id + ".bmp";
        WriteWholeFile(m_run.file(files.thumbnail), thumbnail);
    }
    if (m_select.isNull(8)) {
        SaveFieldToFile(m_connection, {QStringLiteral("AlbumTOC"), QStringLiteral("Picture"), picture.id},
                        m_run.file(files.picture));
    } else {
        WriteWholeFile(m_run.file(files.picture), PublishableBytes(m_run, m_select.rawBytes(8)));
    }
    m_select.reset();
    return files;
}

QByteArray PublishableBytes(const SiteRun& run, const QByteArray& picture)
{
    return HidesPersons(run) ? WithoutMetadata(picture) : picture;
}

} // namespace stemwright
