// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "export/tableexport.h"

#include "base/error.h"
#include "base/files.h"
#include "export/messages.h"
#include "store/engine/engineerror.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// Throws Error for a place where no text file can be.
void RequireFileName(const QFileInfo& file, const QString& familyFile)
{
    const QString shown = QDir::toNativeSeparators(file.filePath());
    if (shown.isEmpty()) {
        throw Error(QStringLiteral("Please give the name of the output file."));
    }
    if (file.fileName().isEmpty() || file.isDir()) {
        throw Error(QStringLiteral("%1 is a folder. Please give the name of a file in it.").arg(shown));
    }
    if ((file.exists() && !file.isFile()) || IsSameFile(file.filePath(), familyFile)) {
        throw Error(QStringLiteral("%1 cannot be replaced by a text file.").arg(shown));
    }
}

/// Whether the folder is there, made now if the user wants it.
bool HasFolder(const QString& folder, Talk& talk)
{
    if (QFileInfo(folder).isDir()) {
        return true;
    }
    if (talk.ask(exportmessages::NoSuchFolder(folder)) != Button::Ok) {
        return false;
    }
    if (!CreateFolderPath(folder)) {
        talk.tell(exportmessages::CannotCreateFolder(folder));
        return false;
    }
    return true;
}

} // namespace

const QStringList& OfferedDelimiters()
{
    static const QStringList delimiters = {tabDelimiter,        QStringLiteral(","), QStringLiteral(":"),
                                           QStringLiteral(";"), QStringLiteral("*"), QStringLiteral("#"),
                                           QStringLiteral("|")};
    return delimiters;
}

QString ProposedExportPath(const QString& folder, const QString& queryName)
{
    return QDir(folder).filePath(queryName + QStringLiteral(".txt"));
}

bool ExportTableAsText(const PictureTable& table, const TableExport& wanted, const QString& familyFile, Talk& talk)
{
    try {
        const QFileInfo file(wanted.path);
        RequireFileName(file, familyFile);
        if (!HasFolder(file.absolutePath(), talk)) {
            return false;
        }
        if (file.exists() && talk.ask(exportmessages::FileExists(file.absoluteFilePath())) != Button::Ok) {
            return false;
        }
        EncodedText text(wanted.encoding);
        const ExportOutcome outcome = ExportTable(table, table.columns().size(), wanted.delimiter, text, talk);
        if (outcome == ExportOutcome::Refused) {
            return false;
        }
        UnfinishedFile unfinished(file.absoluteFilePath());
        WriteWholeFile(unfinished.path(), text.bytes());
        unfinished.putInPlace();
        return outcome == ExportOutcome::Complete;
    } catch (const std::exception& exception) {
        talk.tell(exportmessages::ExportFailed(ReasonText(exception)));
        return false;
    }
}

} // namespace stemwright
