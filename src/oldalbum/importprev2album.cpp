// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/importprev2album.h"

#include "base/error.h"
#include "index/fullname.h"
#include "oldalbum/albumimport.h"
#include "oldalbum/messages.h"
#include "oldalbum/oldnames.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// Whether there is something to import, and the user wants that as things are.
AlbumImportOutcome Prepare(const OldAlbum& album, qint64 namesWaiting, Connection& connection, Talk& talk)
{
    if (album.pictureCount() == 0) {
        talk.tell(oldalbummessages::EmptyAlbum());
        return AlbumImportOutcome::Failed;
    }
    if (!HasIndividuals(connection) && talk.ask(oldalbummessages::NoIndividuals()) != Button::Ok) {
        return AlbumImportOutcome::Declined;
    }
    // The names of an album that was imported before are nowhere else.
    if (namesWaiting > 0 && talk.ask(oldalbummessages::NamesWouldBeLost(namesWaiting)) != Button::Ok) {
        return AlbumImportOutcome::Declined;
    }
    return AlbumImportOutcome::Completed;
}

void Import(FamilyFile& file, const QString& path, Talk& talk, AlbumImportReport& report)
{
    OldAlbum album(path);
    const qint64 namesWaiting = CountUnmarkedNames(file.connection());
    report.outcome = Prepare(album, namesWaiting, file.connection(), talk);
    if (report.outcome != AlbumImportOutcome::Completed) {
        return;
    }
    Transaction transaction(file.connection());
    const PictureLoader pictures({QFileInfo(path).absolutePath(), QFileInfo(file.path()).absolutePath()});
    AlbumImport import(file.connection(), pictures, report);
    if (!import.run(album, talk)) {
        report.outcome = AlbumImportOutcome::Stopped;
    }
    report.namesKept = report.persons == 0 ? namesWaiting : 0;
    transaction.commit();
}

} // namespace

std::optional<QString> ChooseOldAlbum(Talk& talk)
{
    return talk.chooseFile(oldalbummessages::SelectOldAlbum());
}

bool ImportPreV2Album(FamilyFile& file, const QString& path, Environment& environment, AlbumImportReport& report)
{
    report = {};
    Talk& talk = environment.talk;
    if (!file.isOpen()) {
        talk.tell(oldalbummessages::NoFamilyFile());
        return false;
    }
    try {
        Import(file, path, talk, report);
    } catch (const std::exception& exception) {
        report = {};
        talk.tell(oldalbummessages::ImportFailed(path, exception));
        return false;
    }
    if (report.namesKept > 0) {
        talk.tell(oldalbummessages::NamesKept(report.namesKept));
    }
    if (!report.isWhole()) {
        talk.tell(oldalbummessages::NotWhole(report));
    }
    return report.outcome == AlbumImportOutcome::Completed;
}

} // namespace stemwright
