// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/help.h"

#include "app/common/dialogtalk.h"
#include "app/common/messages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace stemwright
{

namespace
{

QString PagePath(const Environment& environment, const QString& page)
{
    return environment.application.file(QStringLiteral("manual/%1.html").arg(page));
}

} // namespace

void ShowHelp(Environment& environment, const QString& page)
{
    const QString path = PagePath(environment, page);
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        environment.talk.tell(appmessages::CannotOpenHelp(QDir::toNativeSeparators(path)));
    }
}

QString FrontHelpPage(const Environment& environment)
{
    for (const QWidget* window = FrontWindow(); window != nullptr; window = window->parentWidget()) {
        const QString page = window->objectName().toLower();
        if (!page.isEmpty() && QFileInfo::exists(PagePath(environment, page))) {
            return page;
        }
    }
    return QStringLiteral("index");
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
    ShowHelp(m_environment, FrontHelpPage(m_environment));
    return true;
}

} // namespace stemwright
