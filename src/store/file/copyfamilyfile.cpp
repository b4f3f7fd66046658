// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/copyfamilyfile.h"

#include "base/error.h"
#include "store/engine/heldfile.h"
#include "store/engine/leftjournal.h"
#include "store/file/messages.h"
#include "store/file/recognise.h"
#include "store/jet/jetfile.h"

#include <SQLiteCpp/Backup.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

const QString backupExtension = QStringLiteral(".ffb");

/// The copy needs no journal, since it is thrown away when it does not become whole, and hardly any cache, since each
/// page is written once. It is flushed to the disk when it is put in place.
SQLite::Database OpenCopy(const QString& path)
{
    SQLite::Database copy(path.toUtf8().constData(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    copy.exec("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-512");
    return copy;
}

void RequireSound(SQLite::Database& copy)
{
    const std::string result = copy.execAndGet("PRAGMA quick_check(1)").getString();
    if (result != "ok") {
        throw Error(QStringLiteral("The copy of the family file is not sound (%1). Please check the family file.")
                        .arg(QString::fromStdString(result)));
    }
}

/// Writes a copy of the open family file beside its place.
void WriteCopy(Connection& connection, const UnfinishedFile& unfinished)
{
    SQLite::Database copy = OpenCopy(unfinished.path());
    SQLite::Backup(copy, connection.engine()).executeStep(-1);
    RequireSound(copy);
}

/// How many individuals a backup holds, of whatever release; none where that cannot be found out.
qint64 IndividualsIn(const QString& backup)
{
    const QString table = QStringLiteral("Indi");
    try {
        if (RecogniseFormat(backup) == FileFormat::Jet) {
            return JetFile(backup).table(table).rowCount;
        }
        SQLite::Database database(backup.toUtf8().constData(), SQLite::OPEN_READONLY);
        return database.execAndGet("SELECT count(*) FROM Indi").getInt64();
    } catch (const std::exception&) {
        return 0;
    }
}

/// A name that is free, and that is a backup's.
QString NameOfKept(const QString& backup)
{
    const QFileInfo info(backup);
    QString kept;
    for (int number = 1; kept.isEmpty() || QFileInfo::exists(kept); ++number) {
        const QString name = QStringLiteral("%1.kept-%2").arg(info.completeBaseName()).arg(number);
        kept = info.absoluteDir().filePath(name + backupExtension);
    }
    return kept;
}

/// Gives the older backup another name where the tree has lost individuals since.
void KeepLargerBackup(Connection& connection, const QString& backup, Talk& talk)
{
    if (IndividualsIn(backup) <= connection.countRows(QStringLiteral("Indi"))) {
        return;
    }
    const QString kept = NameOfKept(backup);
    if (!QFile::rename(backup, kept)) {
        throw Error(QStringLiteral("The older backup, %1, cannot be kept under another name.").arg(backup));
    }
    talk.tell(storemessages::LargerBackupKept(backup, kept));
}

void RequireWritableFolder(const QString& path)
{
    const QFileInfo folder(path);
    if (!folder.isDir()) {
        throw Error(QStringLiteral("There is no folder %1.").arg(QDir::toNativeSeparators(path)));
    }
    if (!folder.isWritable()) {
        throw Error(QStringLiteral("Folder %1 is write-protected.").arg(QDir::toNativeSeparators(path)));
    }
}

} // namespace

void RequireOtherFile(const Connection& connection, const QString& target)
{
    if (IsSameFile(connection.path(), target)) {
        throw Error(QStringLiteral("That is the open family file itself."));
    }
}

void PrepareToReplace(const QString& path)
{
    const QFileInfo info(FileItself(path));
    RequireUsablePath(info.filePath());
    RequireWritableFolder(info.absolutePath());
    if (!info.exists()) {
        return;
    }
    const QString shown = QDir::toNativeSeparators(info.filePath());
    if (!info.isFile()) {
        throw Error(QStringLiteral("%1 is not a file.").arg(shown));
    }
    if (!info.isWritable()) {
        throw Error(QStringLiteral("File %1 is write-protected.").arg(shown));
    }
    if (!HeldFile(path).isHeld()) {
        throw Error(QStringLiteral("File %1 is in use by this or another program.").arg(shown));
    }
}

void PutFamilyFileInPlace(UnfinishedFile& file)
{
    CountChangesFromContent(file.path());
    for (const QString& companion : CompanionsOf(file.target())) {
        QFile::remove(companion);
    }
    file.putInPlace();
}

void CopyFamilyFile(Connection& connection, const QString& target)
{
    RequireOtherFile(connection, target);
    PrepareToReplace(target);
    UnfinishedFile unfinished(target, connection.path());
    WriteCopy(connection, unfinished);
    PutFamilyFileInPlace(unfinished);
}

QString BackupPath(const QString& familyFile)
{
    const QFileInfo info(FileItself(familyFile));
    return info.absoluteDir().filePath(info.completeBaseName() + backupExtension);
}

bool IsBackup(const QString& path)
{
    return FileItself(path).endsWith(backupExtension, Qt::CaseInsensitive);
}

QString BackupFamilyFile(Connection& connection, Talk& talk)
{
    QString target = BackupPath(connection.path());
    RequireOtherFile(connection, target);
    PrepareToReplace(target);
    UnfinishedFile unfinished(target, connection.path());
    WriteCopy(connection, unfinished);
    KeepLargerBackup(connection, target, talk);
    PutFamilyFileInPlace(unfinished);
    return target;
}

} // namespace stemwright
