// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/outputfolder.h"

#include "base/error.h"
#include "base/files.h"
#include "web/messages.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <algorithm>

namespace stemwright
{

namespace
{

/// The path without links, also of a folder that does not exist yet.
QString Resolved(const QString& path)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (info.exists()) {
        return info.canonicalFilePath();
    }
    if (info.isRoot()) {
        return info.filePath();
    }
    const QString parent = Resolved(info.path());
    return (parent.endsWith(u'/') ? parent : parent + u'/') + info.fileName();
}

/// Whether `inner` is `outer` or stands below it.
bool Contains(const QString& outer, const QString& inner)
{
    return inner == outer || inner.startsWith(outer.endsWith(u'/') ? outer : outer + u'/');
}

/// Links count as the files that they are: deleting one leaves alone what it leads to.
QStringList FilesOf(const QString& folder)
{
    QStringList files;
    for (const QFileInfo& entry : QDir(folder).entryInfoList(QDir::Files | QDir::System, QDir::Name)) {
        if (entry.isFile() || entry.isSymLink()) {
            files << entry.absoluteFilePath();
        }
    }
    std::stable_partition(files.begin(), files.end(),
                          [](const QString& file) { return file.endsWith(QStringLiteral("/index.html")); });
    return files;
}

bool HoldsFamilyFiles(const QString& folder)
{
    const QStringList patterns = {QStringLiteral("*.kvf"), QStringLiteral("*.kvf-*"), QStringLiteral("*.ffb")};
    return !QDir(folder).entryList(patterns, QDir::Files | QDir::Hidden).isEmpty();
}

/// A file of the folder that no build has written; empty when there is none.
QString OtherFileIn(const QString& folder)
{
    static const QRegularExpression ofSite(QRegularExpression::anchoredPattern(
        QStringLiteral("(index|left|topleft|topright|bottom|main|TreeList|NameIndex|ListOfPics)\\.html|"
                       "(picpage|sniffer)\\.js|emblem\\.\\w+|(Outline|CTree|DescTree|AncTree)_\\d+_-?\\d+\\.html|"
                       "(PersPage_|PicPage|PicList)-?\\d+\\.html|Pic-?\\d+\\.\\w+|Thumb_-?\\d+\\.bmp|"
                       "Thumbs_(All|-?\\d+)_\\d+\\.html")));
    for (QDirIterator files(folder, QDir::Files); files.hasNext();) {
        const QString name = files.nextFileInfo().fileName();
        if (!ofSite.match(name).hasMatch()) {
            return name;
        }
    }
    return {};
}

bool Create(const QString& folder, Talk& talk)
{
    if (talk.ask(webmessages::OutputFolderDoesNotExist(folder)) != Button::Ok) {
        return false;
    }
    if (!CreateFolderPath(folder)) {
        talk.tell(webmessages::CannotCreateFolder(folder));
        return false;
    }
    return true;
}

/// Why no site may be written into a folder, as a whole sentence; no value when one may.
std::optional<QString> WhyNoOutputFolder(const QString& folder, const ProtectedPlaces& places)
{
    if (folder.trimmed().isEmpty()) {
        return webmessages::NoOutputFolder();
    }
    if (QDir::isRelativePath(folder)) {
        return webmessages::IsNotAFullPath(folder);
    }
    const QString resolved = Resolved(folder);
    if (QFileInfo(resolved).isRoot()) {
        return webmessages::IsRootFolder(folder);
    }
    const QFileInfo info(resolved);
    if (info.exists() && !info.isDir()) {
        return webmessages::IsNotAFolder(folder);
    }
    const QString application = Resolved(places.applicationFolder);
    if (Contains(resolved, application) ||
        (Contains(application, resolved) && !Contains(Resolved(places.pagesFolder), resolved))) {
        return webmessages::IsApplicationFolder(folder);
    }
    if (Contains(resolved, Resolved(places.homeFolder))) {
        return webmessages::HoldsHomeFolder(folder);
    }
    if (Contains(resolved, Resolved(places.familyFile)) || HoldsFamilyFiles(resolved)) {
        return webmessages::HoldsFamilyFile(folder);
    }
    return std::nullopt;
}

} // namespace

ProtectedPlaces ProtectedPlaces::of(const QString& familyFile, const ApplicationFolder& application)
{
    return {familyFile, QDir::homePath(), application.path(), application.pagesFolder()};
}

std::optional<QString> WarningOfOutputFolder(const QString& folder, const ProtectedPlaces& places)
{
    if (std::optional<QString> reason = WhyNoOutputFolder(folder, places)) {
        return reason;
    }
    // The folder itself, or where the first of the folders that are missing would be made.
    QFileInfo place(folder);
    while (!place.exists() && !place.isRoot()) {
        place.setFile(place.absolutePath());
    }
    if (!place.isDir() || !place.isWritable()) {
        return webmessages::IsNotWritable(place.absoluteFilePath());
    }
    const QString other = OtherFileIn(folder);
    return other.isEmpty() ? std::nullopt : std::optional(webmessages::HoldsOtherFiles(folder, other));
}

std::optional<OutputFolder> PrepareOutputFolder(const QString& folder, const ProtectedPlaces& places, Talk& talk)
{
    if (const std::optional<QString> reason = WhyNoOutputFolder(folder, places)) {
        throw Error(*reason);
    }
    if (!QFileInfo::exists(folder) && !Create(folder, talk)) {
        return std::nullopt;
    }
    OutputFolder agreed{QDir(folder).absolutePath(), FilesOf(folder)};
    if (!agreed.oldFiles.isEmpty() && talk.ask(webmessages::OutputFolderHoldsFiles(folder)) != Button::Ok) {
        return std::nullopt;
    }
    return agreed;
}

void EmptyOutputFolder(const OutputFolder& folder)
{
    for (const QString& file : folder.oldFiles) {
        // One that is gone by now is as good as deleted.
        if (!QFile::remove(file) && (QFileInfo::exists(file) || QFileInfo(file).isSymLink())) {
            throw Error(webmessages::CannotDeleteFile(file));
        }
    }
}

} // namespace stemwright
