// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/help.h"

#include "app/dialogtalk.h"
#include "app/messages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtGui/QKeyEvent>
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

HelpKey::HelpKey(Environment& environment) : m_environment(environment)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    // Keys come to the window first and then to the control in it; once is enough.
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) {
        return false;
    }
    ShowHelp(m_environment, FrontHelpPage());
    return true;
}

} // namespace stemwright
