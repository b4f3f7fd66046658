// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/oldalbum.h"

#include "base/error.h"
#include "oldalbum/messages.h"

namespace stemwright
{

namespace
{

constexpr QStringView albumTable = u"AlbumTOC";

} // namespace

JetRows OldAlbum::albumOf(const JetFile& file)
{
    if (!file.hasTable(albumTable)) {
        throw Error(oldalbummessages::NoOldAlbum());
    }
    return file.rows(albumTable);
}

OldAlbum::OldAlbum(const QString& path)
    : m_file(path), m_rows(albumOf(m_file)), m_columns{columnNamed(u"PictureFilename"),
                                                       columnNamed(u"PictureDate"),
                                                       columnNamed(u"Place"),
                                                       columnNamed(u"PicDescr"),
                                                       columnNamed(u"ModificationDate"),
                                                       columnNamed(u"EncodPicDate"),
                                                       columnNamed(u"Participants")}
{
}

int OldAlbum::columnNamed(QStringView name) const
{
    if (const std::optional<int> column = m_rows.table().column(name)) {
        return *column;
    }
    throw Error(oldalbummessages::NoOldAlbum());
}

std::optional<OldPicture> OldAlbum::next()
{
    if (!m_rows.next()) {
        return std::nullopt;
    }
    return OldPicture{m_rows.text(m_columns.filename),    m_rows.text(m_columns.date),
                      m_rows.text(m_columns.place),       m_rows.text(m_columns.description),
                      m_rows.date(m_columns.modified),    m_rows.text(m_columns.encodedDate),
                      m_rows.text(m_columns.participants)};
}

} // namespace stemwright
