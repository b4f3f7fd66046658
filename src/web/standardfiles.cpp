// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/standardfiles.h"

#include "base/error.h"
#include "base/files.h"
#include "web/messages.h"
#include "web/setup/backgroundstyles.h"

#include <QtCore/QDir>

namespace stemwright
{

namespace
{

void CopyFiles(const QString& from, const QString& to)
{
    for (const QFileInfo& file : QDir(from).entryInfoList(QDir::Files, QDir::Name)) {
        const QString target = to + u'/' + file.fileName();
        // A link that stands there must not lead the copy out of the folder.
        if (QFileInfo(target).isSymLink()) {
            QFile::remove(target);
        }
        WriteWholeFile(target, ReadWholeFile(file.filePath()));
    }
}

} // namespace

void CopyStandardFiles(int pageStyle, const ApplicationFolder& application, const QString& outputFolder)
{
    const QString graphics = outputFolder + QStringLiteral("/graphics");
    if (QFileInfo(graphics).isSymLink()) {
        QFile::remove(graphics);
    }
    if (!CreateFolderPath(graphics)) {
        throw Error(webmessages::CannotCreateGraphicsFolder(graphics));
    }
    CopyFiles(application.file(QStringLiteral("graphics")), graphics);
    CopyFiles(StyleFolder(pageStyle, application) + QStringLiteral("/graphics"), graphics);
}

} // namespace stemwright
