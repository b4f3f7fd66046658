// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/albumimport.h"

#include "base/error.h"
#include "base/text.h"
#include "oldalbum/messages.h"
#include "store/engine/schema.h"

namespace stemwright
{

AlbumImport::AlbumImport(Connection& connection, PictureLoader pictures, AlbumImportReport& report)
    : m_connection(connection), m_pictures(std::move(pictures)), m_report(report), m_persons(connection),
      m_insert(connection.prepare(QStringLiteral(
          "INSERT INTO AlbumTOC (PictureDate, Place, Title, PicDescr, ModificationDate, EncodPicDate, PicFilename, "
          "PicType, Picture, Thumb, PicWidth, PicHeight, NamesLeft, Rectangle) "
          "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, 0, 0)")))
{
    Statement select = connection.prepare(QStringLiteral("SELECT PicFilename FROM AlbumTOC WHERE PicFilename <> ''"));
    while (select.step()) {
        m_filenames.insert(CollationKey(select.text(0)));
    }
}

bool AlbumImport::run(OldAlbum& album, Talk& talk)
{
    const auto progress = talk.progress(oldalbummessages::importProgress, oldalbummessages::importingAlbum);
    m_report.inAlbum = album.pictureCount();
    qint64 done = 0;
    while (const std::optional<OldPicture> picture = album.next()) {
        progress->setPercent(static_cast<int>(100 * done++ / m_report.inAlbum));
        if (progress->stopWished() || importOne(*picture, talk) == Next::Stop) {
            return false;
        }
    }
    progress->setPercent(100);
    return true;
}

AlbumImport::Next AlbumImport::importOne(const OldPicture& picture, Talk& talk)
{
    if (isDuplicate(picture)) {
        return skipDuplicate(picture, talk);
    }
    add(picture);
    return Next::Continue;
}

bool AlbumImport::isDuplicate(const OldPicture& picture) const
{
    // Records that name no file are not the same picture for that.
    return !picture.filename.isEmpty() && m_filenames.contains(CollationKey(CutToColumn(picture.filename)));
}

AlbumImport::Next AlbumImport::skipDuplicate(const OldPicture& picture, Talk& talk)
{
    if (m_duplicates == Duplicates::Ask) {
        switch (talk.ask(oldalbummessages::DuplicatePicture(picture.filename))) {
        case Button::Yes:
            break;
        case Button::No:
            m_duplicates = Duplicates::Silent;
            break;
        default:
            return Next::Stop;
        }
    }
    ++m_report.duplicates;
    return Next::Continue;
}

void AlbumImport::add(const OldPicture& picture)
{
    const QString filename = fitting(picture.filename, QStringLiteral("file name"));
    const QString title = CutToColumn(picture.description);
    m_insert.bind(1, fitting(picture.date, QStringLiteral("date")));
    m_insert.bind(2, fitting(picture.place, QStringLiteral("place")));
    // A description that is too long for a title is kept whole where descriptions are kept today.
    m_insert.bind(3, title).bind(4, title == picture.description ? QString() : picture.description);
    m_insert.bind(5, picture.modified).bind(6, fitting(picture.encodedDate, QStringLiteral("sorted date")));
    m_insert.bind(7, filename);
    const LoadedPicture loaded = loadPicture(picture.filename).value_or(LoadedPicture());
    m_insert.bind(8, loaded.type).bindBytes(9, loaded.bytes).bindBytes(10, loaded.thumbnail);
    const auto side = [&loaded](int length) { return loaded.size.isEmpty() ? std::nullopt : std::optional(length); };
    m_insert.bind(11, side(loaded.size.width())).bind(12, side(loaded.size.height()));
    m_insert.run();
    const int id = static_cast<int>(m_connection.lastInsertId());
    ++m_report.imported;
    m_filenames.insert(CollationKey(filename));

    for (const Participant& person : SplitParticipants(picture.participants)) {
        m_persons.add(id, {fitting(person.name, QStringLiteral("person's name")),
                           fitting(person.x, QStringLiteral("person's place")),
                           fitting(person.y, QStringLiteral("person's place"))});
        ++m_report.persons;
    }
    m_report.names = m_persons.nameCount();
}

std::optional<LoadedPicture> AlbumImport::loadPicture(const QString& filename)
{
    if (filename.isEmpty()) {
        return std::nullopt;
    }
    try {
        std::optional<LoadedPicture> picture = m_pictures.load(filename);
        if (picture) {
            ++m_report.loaded;
        } else {
            m_report.missing << filename;
        }
        return picture;
    } catch (const Error& error) {
        m_report.unfit << QStringLiteral("%1: %2").arg(filename, error.text());
        return std::nullopt;
    }
}

QString AlbumImport::fitting(const QString& text, const QString& what)
{
    QString cut = CutToColumn(text);
    if (cut.size() < text.size()) {
        m_report.cut << oldalbummessages::CutText(what, text);
    }
    return cut;
}

} // namespace stemwright
