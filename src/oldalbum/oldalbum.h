// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/jet/jetfile.h"

/// An album of an earlier release, which was a Jet database of its own: its picture records, one after the other in
/// their stored order. It is only read. Whatever cannot be read fails with Error. Stands on the Jet reader.
namespace stemwright
{

/// A picture record as the old album has it. Null texts are Null there.
struct OldPicture {
    QString filename;
    QString date;
    QString place;
    QString description;
    QString modified;
    QString encodedDate;
    QString participants;
};

class OldAlbum
{
public:
    /// Throws Error for a database that is no old album.
    explicit OldAlbum(const QString& path);

    qint64 pictureCount() const { return m_rows.table().rowCount; }

    /// The next record; no value when there is none.
    std::optional<OldPicture> next();

private:
    struct Columns {
        int filename;
        int date;
        int place;
        int description;
        int modified;
        int encodedDate;
        int participants;
    };

    static JetRows albumOf(const JetFile& file);
    int columnNamed(QStringView name) const;

    JetFile m_file;
    JetRows m_rows;
    Columns m_columns;
};

} // namespace stemwright
