// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/pictureediting.h"

#include "album/messages.h"
#include "album/thumbnail.h"
#include "base/error.h"
#include "base/files.h"
#include "index/fullname.h"
#include "index/messages.h"
#include "store/engine/schema.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// A file that was found fit for a record.
struct ChosenPicture {
    PictureContent content;
    QSize size;
};

enum class WithThumbnail { No, Yes };

ChosenPicture ReadPicture(const QFileInfo& file, WithThumbnail withThumbnail)
{
    const ImageFile image(ReadWholeFile(file.filePath()));
    RequireFittingExtension(file.suffix(), image.format());
    RequireShortText(file.completeBaseName(), QStringLiteral("The name of the file"));
    // Made in any case, since decoding is what shows whether the picture is sound.
    const QByteArray thumbnail = MakeThumbnail(image);
    return {{image.bytes(), withThumbnail == WithThumbnail::Yes ? thumbnail : QByteArray()}, image.size()};
}

void RequireFile(const QFileInfo& file)
{
    if (!file.exists()) {
        throw Error(QStringLiteral("There is no such file."));
    }
    if (!file.isFile()) {
        throw Error(QStringLiteral("It is not a file."));
    }
}

} // namespace

PictureEditing::PictureEditing(Connection& connection, Environment& environment)
    : m_connection(connection), m_environment(environment)
{
}

void PictureEditing::open(const PictureRecord& record)
{
    m_marks.LoadPersonList(m_connection, record.id);
    m_record = record;
    if (m_record.encodedDate.isNull()) {
        m_record.encodedDate = noEncodedDate;
    }
    m_storedTool = record.pointer;
    m_content.reset();
    m_chosenPath.clear();
}

void PictureEditing::AddPicRec(std::optional<int> current)
{
    open({});
    m_returnTo = current;
}

void PictureEditing::EditPicRec(int pictureId)
{
    open(LoadPictureRecord(m_connection, pictureId));
    m_returnTo = pictureId;
}

void PictureEditing::setDate(const PickedDate& date)
{
    m_record.date = date.text;
    m_record.encodedDate = date.encoded;
}

bool PictureEditing::choosePicture(const QString& path)
{
    Talk& talk = m_environment.talk;
    const QFileInfo file(path);
    try {
        RequireFile(file);
        const qint64 kilobytes = SizeInKilobytes(file.size());
        if (kilobytes > largestPicture) {
            talk.tell(albummessages::PictureRefused(kilobytes));
            return false;
        }
        const bool small = kilobytes <= largestWithThumbnail;
        if (!small && talk.ask(albummessages::PictureWithoutThumbnail(kilobytes)) != Button::Ok) {
            return false;
        }
        const ChosenPicture chosen = ReadPicture(file, small ? WithThumbnail::Yes : WithThumbnail::No);
        m_content = chosen.content;
        m_record.size = chosen.size;
    } catch (const Error& error) {
        talk.tell(albummessages::CannotUsePicture(path, error.text()));
        return false;
    }
    m_chosenPath = path;
    m_record.type = file.suffix();
    m_record.filename = file.completeBaseName();
    return true;
}

void PictureEditing::removePicture()
{
    m_content = PictureContent{};
    m_chosenPath.clear();
    m_record.type = QString();
    m_record.filename = QString();
    m_record.size = {};
}

bool PictureEditing::RectangleOnOff(PointerTool tool)
{
    const bool losesSizes =
        tool == PointerTool::Arrow && m_storedTool == PointerTool::Rectangle && !m_marks.all().empty();
    if (losesSizes && m_record.pointer != tool &&
        m_environment.talk.ask(albummessages::ChangePointerToArrow()) != Button::Ok) {
        return false;
    }
    m_record.pointer = tool;
    return true;
}

MarkPlace PictureEditing::typedPlace(const QString& typed) const
{
    MarkPlace place = ReadMarkPlace(typed);
    if (m_record.pointer == PointerTool::Arrow) {
        if (place.width) {
            throw Error(QStringLiteral("Persons in this picture are marked by arrows, whose place is X,Y alone."));
        }
    } else if (!place.width) {
        place.width = defaultPointerSize.width();
        place.height = defaultPointerSize.height();
    }
    RequireWithinPicture(place, m_record.size, m_record.pointer);
    return place;
}

bool PictureEditing::addIndividual(int individualId, const std::optional<MarkPlace>& place)
{
    if (!HasIndividuals(m_connection)) {
        m_environment.talk.tell(indexmessages::NoIndexOfNames());
        return false;
    }
    return m_marks.add({individualId, StoredFullName(m_connection, individualId), place}, m_environment.talk);
}

bool PictureEditing::addName(const QString& name, const std::optional<MarkPlace>& place)
{
    return m_marks.add({0, name, place}, m_environment.talk);
}

void PictureEditing::requireMarksWithinNewPicture() const
{
    if (!m_content || m_content->picture.isNull()) {
        return;
    }
    // A mark that was dragged to the edge of a scaled picture may be rounded to a pixel beyond it.
    const QSize room = m_record.size + QSize(1, 1);
    for (const PersonMark& mark : m_marks.all()) {
        if (mark.place && (mark.place->x + mark.place->width.value_or(0) > room.width() ||
                           mark.place->y + mark.place->height.value_or(0) > room.height())) {
            throw Error(
                QStringLiteral("The mark of %1 would lie outside the new picture, which is %2 pixels wide and "
                               "%3 pixels high. Please move or remove the mark first.")
                    .arg(mark.name, QString::number(m_record.size.width()), QString::number(m_record.size.height())));
        }
    }
}

int PictureEditing::apply()
{
    requireMarksWithinNewPicture();
    PictureRecord record = m_record;
    record.modified = m_environment.clock.now().toString(Qt::ISODate);
    Transaction transaction(m_connection);
    record.id = WritePictureRecord(m_connection, record, m_content);
    m_marks.write(m_connection, record.id, record.pointer);
    transaction.commit();
    open(record);
    return record.id;
}

std::optional<int> PictureEditing::cancel()
{
    open(m_returnTo ? FindPictureRecord(m_connection, *m_returnTo).value_or(PictureRecord{}) : PictureRecord{});
    return m_returnTo;
}

} // namespace stemwright
