// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/standardfiles.h"

#include "base/error.h"
#include "base/files.h"
#include "web/messages.h"
#include "web/setup/backgroundstyles.h"

#include <QtCore/QDir>

#include <array>

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

constexpr std::array<const char*, 14> templates = {
    "ctreetop.html", "nameindextop.html",  "perspagetop.html",   "piclist.html",        "piclisttop.html",
    "picpage.js",    "picpagebot_na.html", "picpagebot_nl.html", "picpagetop_arr.html", "picpagetop_rec.html",
    "sniffer.js",    "thumbgalltop.html",  "topleft.html",       "treelisttop.html"};

constexpr std::array<const char*, 5> templatesOfStyle = {"bottom.html", "left.html", "main.html", "topright.html",
                                                         "tree.html"};

} // namespace

void RequireTemplates(int pageStyle, const ApplicationFolder& application)
{
    for (const char* name : templates) {
        ReadWholeFile(application.file(QStringLiteral("html/") + QLatin1StringView(name)));
    }
    for (const char* name : templatesOfStyle) {
        ReadWholeFile(StyleFolder(pageStyle, application) + u'/' + QLatin1StringView(name));
    }
}

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
