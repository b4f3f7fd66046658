// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/albumimportreport.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace stemwright
{

namespace
{

QString OutcomeWord(AlbumImportOutcome outcome)
{
    switch (outcome) {
    case AlbumImportOutcome::Failed:
        return QStringLiteral("failed");
    case AlbumImportOutcome::Declined:
        return QStringLiteral("declined");
    case AlbumImportOutcome::Stopped:
        return QStringLiteral("stopped");
    case AlbumImportOutcome::Completed:
        return QStringLiteral("completed");
    }
    return {};
}

} // namespace

QString ReportText(const AlbumImportReport& report)
{
    QString text = QStringLiteral("Picture records imported: %1 of %2\n"
                                  "Duplicates left out: %3\n"
                                  "Names: %4\n"
                                  "Persons on pictures: %5\n"
                                  "Picture files loaded: %6\n")
                       .arg(report.imported)
                       .arg(report.inAlbum)
                       .arg(report.duplicates)
                       .arg(report.names)
                       .arg(report.persons)
                       .arg(report.loaded);
    if (report.outcome == AlbumImportOutcome::Stopped) {
        text += QStringLiteral("The import was stopped before its end.\n");
    }
    return text;
}

QByteArray ReportJson(const AlbumImportReport& report)
{
    const QJsonObject object{{QStringLiteral("outcome"), OutcomeWord(report.outcome)},
                             {QStringLiteral("inAlbum"), report.inAlbum},
                             {QStringLiteral("imported"), report.imported},
                             {QStringLiteral("duplicates"), report.duplicates},
                             {QStringLiteral("names"), report.names},
                             {QStringLiteral("persons"), report.persons},
                             {QStringLiteral("namesKept"), report.namesKept},
                             {QStringLiteral("loaded"), report.loaded},
                             {QStringLiteral("missing"), QJsonArray::fromStringList(report.missing)},
                             {QStringLiteral("unfit"), QJsonArray::fromStringList(report.unfit)},
                             {QStringLiteral("cut"), QJsonArray::fromStringList(report.cut)}};
    return QJsonDocument(object).toJson();
}

} // namespace stemwright
