// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "camera.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace stemwright::screenshots
{

namespace
{

constexpr int millisecondsBetweenLooks = 50;
constexpr int millisecondsToSettle = 150;
constexpr int longestWait = 20'000;

} // namespace

void Settle()
{
    QEventLoop loop;
    QTimer::singleShot(millisecondsToSettle, &loop, &QEventLoop::quit);
    loop.exec();
}

void Camera::take(QWidget& window, const QString& name)
{
    Settle();
    const QString path = m_folder.filePath(name + QStringLiteral(".png"));
    if (!window.grab().save(path)) {
        fail(path);
    }
}

void Camera::inside(const QString& objectName, const std::function<void()>& open, const Visit& visit)
{
    QTimer::singleShot(0, [this, objectName, visit] { await(objectName, visit, QDeadlineTimer(longestWait)); });
    open();
    Settle();
}

void Camera::takeModal(const QString& objectName, const std::function<void()>& open)
{
    inside(objectName, open, [this, objectName](QWidget& window) { take(window, objectName.toLower()); });
}

void Camera::await(const QString& objectName, const Visit& visit, QDeadlineTimer deadline)
{
    const QPointer<QWidget> window = QApplication::activeModalWidget();
    if (window != nullptr && window->objectName() == objectName) {
        visit(*window);
        if (window != nullptr && window->isVisible()) {
            window->close();
        }
    } else if (!deadline.hasExpired()) {
        QTimer::singleShot(millisecondsBetweenLooks,
                           [this, objectName, visit, deadline] { await(objectName, visit, deadline); });
    } else {
        fail(objectName);
        if (window != nullptr) {
            window->close();
        }
    }
}

void Camera::fail(const QString& what)
{
    ++m_failures;
    std::fprintf(stderr, "screenshots: no picture of %s\n", qUtf8Printable(what));
}

} // namespace stemwright::screenshots
