// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// What the import of an old album did, and all that did not come into the family file whole. Plain values that nothing
/// here can make fail.
namespace stemwright
{

enum class AlbumImportOutcome {
    /// Nothing was changed: it could not be done, which the user was told,
    Failed,
    /// or the user chose not to go on.
    Declined,
    /// The user ended it; what was imported before stays.
    Stopped,
    Completed
};

struct AlbumImportReport {
    AlbumImportOutcome outcome = AlbumImportOutcome::Failed;
    /// Records that the album has, and those of them that were imported or left out as duplicates.
    qint64 inAlbum = 0;
    qint64 imported = 0;
    qint64 duplicates = 0;
    /// Different names, and persons on pictures.
    qint64 names = 0;
    qint64 persons = 0;
    /// Names of an earlier import that still wait to be matched, because no person came in their stead.
    qint64 namesKept = 0;
    /// Pictures that came into the family file with their records.
    qint64 loaded = 0;
    /// The picture files that were looked for in vain, as the album names them.
    QStringList missing;
    /// Those that were found but are no fit pictures, each with the reason.
    QStringList unfit;
    /// Texts of which only the beginning fits the family file, each named with its picture's number.
    QStringList cut;

    bool isWhole() const { return missing.isEmpty() && unfit.isEmpty() && cut.isEmpty(); }
};

/// The report as lines of text for the user, each ended by a line break, or as a JSON document.
QString ReportText(const AlbumImportReport& report);
QByteArray ReportJson(const AlbumImportReport& report);

} // namespace stemwright
