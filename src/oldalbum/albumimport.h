// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "oldalbum/albumimportreport.h"
#include "oldalbum/oldalbum.h"
#include "oldalbum/persontables.h"
#include "oldalbum/pictureloader.h"

#include <QtCore/QSet>

/// The import of an old album's picture records, without what is asked before it. Must live within one transaction.
/// Fails with Error and as the engine fails. Stands on the old album and the work tables.
namespace stemwright
{

class AlbumImport
{
public:
    /// Creates the work tables where there are none with names.
    AlbumImport(Connection& connection, PictureLoader pictures, AlbumImportReport& report);

    /// Imports the records in their stored order, asking about duplicates until the user silences that. False when the
    /// user ended it before the last one.
    bool run(OldAlbum& album, Talk& talk);

private:
    enum class Duplicates { Ask, Silent };
    enum class Next { Continue, Stop };

    Next importOne(const OldPicture& picture, Talk& talk);
    bool isDuplicate(const OldPicture& picture) const;
    Next skipDuplicate(const OldPicture& picture, Talk& talk);
    void add(const OldPicture& picture);
    std::optional<LoadedPicture> loadPicture(const QString& filename);
    /// What fits a text column; the rest is reported under what it is called.
    QString fitting(const QString& text, const QString& what);

    Connection& m_connection;
    PictureLoader m_pictures;
    AlbumImportReport& m_report;
    PersonTables m_persons;
    Statement m_insert;
    /// The family file's picture files, by what makes two names the same.
    QSet<QByteArray> m_filenames;
    Duplicates m_duplicates = Duplicates::Ask;
};

} // namespace stemwright
