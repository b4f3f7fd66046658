// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/copyfamilyfile.h"

#include "base/error.h"
#include "store/engine/heldfile.h"
#include "store/engine/leftjournal.h"

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
    {
        SQLite::Database copy = OpenCopy(unfinished.path());
        SQLite::Backup(copy, connection.engine()).executeStep(-1);
        RequireSound(copy);
    }
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

QString BackupFamilyFile(Connection& connection)
{
    QString target = BackupPath(connection.path());
    CopyFamilyFile(connection, target);
    return target;
}

} // namespace stemwright
