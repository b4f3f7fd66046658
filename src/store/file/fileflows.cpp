// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/fileflows.h"

#include "base/files.h"
#include "store/engine/engineerror.h"
#include "store/file/copyfamilyfile.h"
#include "store/file/messages.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

bool MayReplace(const QString& path, Talk& talk)
{
    return !QFileInfo(path).isFile() || talk.ask(storemessages::ReplaceExisting(path)) == Button::Yes;
}

constexpr qsizetype mostRecentFiles = 10;

QStringList StoredRecentFiles(const Settings& settings)
{
    return settings.value(setting::openCreateFamFile, setting::recentFamilyFiles).split(u'\n', Qt::SkipEmptyParts);
}

void Remember(const FamilyFile& file, Settings& settings)
{
    settings.setValue(setting::openCreateFamFile, setting::lastFamilyFile, file.path());
    QStringList recent = StoredRecentFiles(settings);
    recent.removeAll(file.path());
    recent.prepend(file.path());
    settings.setValue(setting::openCreateFamFile, setting::recentFamilyFiles,
                      recent.first(std::min(recent.size(), mostRecentFiles)).join(u'\n'));
}

/// Makes the sites of the sample family go where its user keeps his pages. The file is shipped with a folder that is
/// nobody's (samples/setups.commands); what the user has chosen since stays.
void PlaceSitesOfSample(Connection& connection, const QString& pagesFolder)
{
    Statement update = connection.prepare(QStringLiteral("UPDATE WebSiteInfo SET WebPageFolder = ?1 || SetupName"
                                                         " WHERE WebPageFolder = '/fampages/' || SetupName"));
    update.bind(1, pagesFolder + u'/').run();
}

/// The sample family file in a place where it can be changed.
QString WritableSampleFile(const ApplicationFolder& application)
{
    const QString shipped = application.sampleFile();
    if (application.isWritable() || !QFileInfo::exists(shipped)) {
        return shipped;
    }
    QString own = ApplicationFolder::userFolder() + u'/' + QFileInfo(shipped).fileName();
    if (!QFileInfo::exists(own)) {
        CreateFolderPath(ApplicationFolder::userFolder());
        UnfinishedFile unfinished(own);
        WriteWholeFile(unfinished.path(), ReadWholeFile(shipped));
        PutFamilyFileInPlace(unfinished);
    }
    return own;
}

} // namespace

bool CreateNewFamilyFile(FamilyFile& file, const QString& path, Environment& environment)
{
    if (!MayReplace(QFileInfo(path).absoluteFilePath(), environment.talk) ||
        !CreateFamilyFile(file, path, environment)) {
        return false;
    }
    Remember(file, environment.settings);
    if (environment.settings.value(setting::openCreateFamFile, setting::showNewAlbumConfirm).isEmpty()) {
        if (environment.talk.tellWithCheckBox(storemessages::CreationConfirmation(), storemessages::DontShowAgain())) {
            environment.settings.setValue(setting::openCreateFamFile, setting::showNewAlbumConfirm, setting::dontShow);
        }
    }
    return true;
}

bool OpenAlbum(FamilyFile& file, const QString& path, Environment& environment)
{
    if (!OpenFamilyFile(file, path, environment)) {
        return false;
    }
    Remember(file, environment.settings);
    return true;
}

bool OpenTestDB(FamilyFile& file, Environment& environment)
{
    QString sample = environment.application.sampleFile();
    try {
        sample = WritableSampleFile(environment.application);
        if (!QFileInfo::exists(sample)) {
            environment.talk.tell(storemessages::NoTestFile(sample));
            return false;
        }
        const bool isOpen = file.isOpen() && IsSameFile(file.path(), sample);
        FamilyFile opened;
        if (!isOpen && !OpenFamilyFile(opened, sample, environment)) {
            return false;
        }
        Connection& connection = isOpen ? file.connection() : opened.connection();
        PlaceSitesOfSample(connection, environment.application.pagesFolder());
        const QString backup = BackupFamilyFile(connection, environment.talk);
        environment.talk.tell(storemessages::OpeningTestFile(sample, backup));
        if (!isOpen) {
            file = std::move(opened);
        }
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotOpen(sample, ReasonText(exception)));
        return false;
    }
    Remember(file, environment.settings);
    return true;
}

QString FamilyFileOfArgument(const QString& argument)
{
    QString name = argument;
    if (const qsizetype blank = name.indexOf(u' '); blank >= 0) {
        name.remove(blank, 1);
    }
    const bool meantAsTyped = !QFileInfo::exists(name) && QFileInfo::exists(argument);
    return QFileInfo(meantAsTyped ? argument : name).absoluteFilePath();
}

QStringList RecentFamilyFiles(const Settings& settings)
{
    QStringList files = StoredRecentFiles(settings);
    files.removeIf([](const QString& path) { return !QFileInfo(path).isFile(); });
    return files;
}

bool SaveFamilyFileAs(FamilyFile& file, const QString& path, Environment& environment)
{
    const QString target = QFileInfo(path).absoluteFilePath();
    try {
        RequireOtherFile(file.connection(), target);
        if (!MayReplace(target, environment.talk)) {
            return false;
        }
        CopyFamilyFile(file.connection(), target);
        return true;
    } catch (const std::exception& exception) {
        environment.talk.tell(storemessages::CannotSaveAs(target, ReasonText(exception)));
        return false;
    }
}

} // namespace stemwright
