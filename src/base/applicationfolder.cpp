// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/applicationfolder.h"

#include "base/error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

#include <utility>

namespace stemwright
{

ApplicationFolder::ApplicationFolder(QString path) : m_path(std::move(path)) {}

ApplicationFolder ApplicationFolder::ofProgram()
{
    const QString path =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/stemwright"));
    if (!QFileInfo::exists(path + QStringLiteral("/html"))) {
        throw Error(
            QStringLiteral("The application's folder, %1, is missing or incomplete. Please install Stemwright again.")
                .arg(QDir::toNativeSeparators(path)));
    }
    return ApplicationFolder(path);
}

QString ApplicationFolder::pagesFolder() const
{
    return (isWritable() ? m_path : userFolder()) + QStringLiteral("/fampages");
}

QString ApplicationFolder::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Stemwright");
}

bool ApplicationFolder::isWritable() const
{
    return QFileInfo(m_path).isWritable();
}

} // namespace stemwright
