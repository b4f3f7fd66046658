// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/help.h"

#include "app/dialogtalk.h"
#include "app/messages.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QWidget>

namespace stemwright
{

void ShowHelp(Environment& environment, const QString& page)
{
    const QString manual = environment.application.file(QStringLiteral("manual/"));
    const QString wanted = manual + page + QStringLiteral(".html");
    const QString path = QFileInfo::exists(wanted) ? wanted : manual + QStringLiteral("index.html");
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        environment.talk.tell(appmessages::CannotOpenHelp(QDir::toNativeSeparators(path)));
    }
}

QString FrontHelpPage()
{
    const QWidget* window = FrontWindow();
    return window != nullptr ? window->objectName().toLower() : QStringLiteral("index");
}

} // namespace stemwright
