// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/viewer/siteview.h"

#include "base/error.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>
#include <QtGui/QOpenGLContext>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

/// Qt Gui exports it for Qt WebEngine and shows it in no header.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
Q_GUI_EXPORT QOpenGLContext* qt_gl_global_share_context();

namespace stemwright
{

namespace
{

/// The browser wants a graphics context that all windows share, before its library is loaded. Qt would make it when the
/// program starts (Qt::AA_ShareOpenGLContexts), which takes a quarter of a second, whether or not a site is ever looked
/// at. Without any graphics driver the context is not valid, from which the browser sees that it has to draw by itself.
void PrepareGraphics()
{
    if (qt_gl_global_share_context() == nullptr) {
        auto* context = new QOpenGLContext(QCoreApplication::instance());
        context->create();
        qt_gl_set_global_share_context(context);
    }
}

/// The browser's sandbox does not work for the superuser, and the browser then refuses to start. Nothing but the site's
/// own files is ever loaded here.
void PermitSuperuser()
{
#ifdef Q_OS_UNIX
    if (geteuid() == 0) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    }
#endif
}

MakeSiteView Load()
{
    PrepareGraphics();
    PermitSuperuser();
    QLibrary library(QCoreApplication::applicationDirPath() +
                     QStringLiteral("/../lib/stemwright/libstemwright_siteview"));
    const auto make = reinterpret_cast<MakeSiteView>(library.resolve("stemwrightSiteView"));
    if (make == nullptr) {
        throw Error(
            QStringLiteral("Sites cannot be viewed: %1. Please install Stemwright again.").arg(library.errorString()));
    }
    return make;
}

} // namespace

LocalSite LocalSite::published(const QString& index)
{
    return {index, QFileInfo(index).absolutePath()};
}

std::unique_ptr<SiteView> OpenSiteView(const LocalSite& site, const SiteViewReports& reports)
{
    static const MakeSiteView make = Load();
    return std::unique_ptr<SiteView>(make(site, reports));
}

} // namespace stemwright
