// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/viewer/siteview.h"

#include <QtCore/QDir>
#include <QtGui/QAction>
#include <QtWebEngineCore/QWebEngineNewWindowRequest>
#include <QtWebEngineCore/QWebEnginePage>
#include <QtWebEngineCore/QWebEngineProfile>
#include <QtWebEngineCore/QWebEngineSettings>
#include <QtWebEngineCore/QWebEngineUrlRequestInterceptor>
#include <QtWebEngineWidgets/QWebEngineView>

namespace stemwright
{

namespace
{

/// The files of a site: its folder and what is below it.
class SiteFolder
{
public:
    explicit SiteFolder(const QString& path) : m_folder(QDir::cleanPath(path) + u'/') {}

    bool holds(const QUrl& address) const
    {
        return address.isLocalFile() && address.host().isEmpty() &&
               QDir::cleanPath(address.toLocalFile()).startsWith(m_folder);
    }

private:
    QString m_folder;
};

/// Whether the system's browser may be asked to open an address.
bool MayLeaveFor(const QUrl& address)
{
    static const QStringList schemes{QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto"),
                                     QStringLiteral("file")};
    return address.isValid() && schemes.contains(address.scheme());
}

/// Lets pages load nothing but what belongs to their site: no pictures, scripts or pages from elsewhere.
class SiteGuard : public QWebEngineUrlRequestInterceptor
{
public:
    explicit SiteGuard(const SiteFolder& site) : m_site(site) {}

    void interceptRequest(QWebEngineUrlRequestInfo& request) override
    {
        const QUrl address = request.requestUrl();
        request.block(!m_site.holds(address) && address.scheme() != QStringLiteral("data"));
    }

private:
    const SiteFolder& m_site;
};

class SitePage : public QWebEnginePage
{
public:
    SitePage(const SiteFolder& site, QWebEngineProfile& profile, std::function<void(const QUrl&)> left)
        : QWebEnginePage(&profile, nullptr), m_site(site), m_left(std::move(left))
    {
        connect(this, &QWebEnginePage::newWindowRequested, this, [this](QWebEngineNewWindowRequest& request) {
            if (request.isUserInitiated()) {
                follow(request.requestedUrl());
            }
        });
    }

protected:
    bool acceptNavigationRequest(const QUrl& address, NavigationType type, bool) override
    {
        if (m_site.holds(address)) {
            return true;
        }
        // What the page does by itself leads nowhere else; only a link is a wish of the user.
        if (type == NavigationTypeLinkClicked) {
            leaveFor(address);
        }
        return false;
    }

    /// What scripts have to say is for their author, who looks at it in a browser of his own.
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) override {}

private:
    /// A link that wants a window of its own: a page of the site gets this one.
    void follow(const QUrl& address)
    {
        if (m_site.holds(address)) {
            later([this, address] { load(address); });
        } else {
            leaveFor(address);
        }
    }

    void leaveFor(const QUrl& address)
    {
        if (MayLeaveFor(address)) {
            later([this, address] { m_left(address); });
        }
    }

    /// The browser is in the middle of something when it asks where a link may lead.
    template <typename Action>
    void later(Action action)
    {
        QMetaObject::invokeMethod(this, action, Qt::QueuedConnection);
    }

    const SiteFolder& m_site;
    std::function<void(const QUrl&)> m_left;
};

void Restrict(QWebEngineSettings& settings)
{
    for (const auto attribute :
         {QWebEngineSettings::PluginsEnabled, QWebEngineSettings::PdfViewerEnabled, QWebEngineSettings::WebGLEnabled,
          QWebEngineSettings::LocalStorageEnabled, QWebEngineSettings::LocalContentCanAccessRemoteUrls,
          QWebEngineSettings::JavascriptCanAccessClipboard, QWebEngineSettings::DnsPrefetchEnabled,
          QWebEngineSettings::AutoLoadIconsForPage}) {
        settings.setAttribute(attribute, false);
    }
}

/// Its profile has no name and so leaves nothing on the disk; nobody accepts its downloads, so there are none.
class WebSiteView : public SiteView
{
public:
    WebSiteView(const LocalSite& site, const SiteViewReports& reports)
        : m_site(site.folder), m_guard(m_site), m_page(m_site, m_profile, reports.left)
    {
        Restrict(*m_profile.settings());
        m_profile.setUrlRequestInterceptor(&m_guard);
        m_view.setPage(&m_page);
        m_view.setContextMenuPolicy(Qt::ActionsContextMenu);
        for (const auto action : {QWebEnginePage::Back, QWebEnginePage::Forward, QWebEnginePage::Reload,
                                  QWebEnginePage::Copy, QWebEnginePage::SelectAll}) {
            m_view.addAction(m_page.action(action));
        }
        QObject::connect(&m_page, &QWebEnginePage::titleChanged, &m_view, reports.titled);
        QObject::connect(&m_page, &QWebEnginePage::linkHovered, &m_view, reports.hovered);
        QObject::connect(&m_page, &QWebEnginePage::renderProcessTerminated, &m_view, [reports](auto status, int) {
            if (status != QWebEnginePage::NormalTerminationStatus) {
                reports.failed();
            }
        });
        QObject::connect(m_page.action(QWebEnginePage::Back), &QAction::enabledChanged, &m_view, reports.backChanged);
        QObject::connect(m_page.action(QWebEnginePage::Forward), &QAction::enabledChanged, &m_view,
                         reports.forwardChanged);
        m_page.load(QUrl::fromLocalFile(site.page));
    }

    QWidget& widget() override { return m_view; }

    void back() override { m_page.triggerAction(QWebEnginePage::Back); }

    void forward() override { m_page.triggerAction(QWebEnginePage::Forward); }

    void reload() override { m_page.triggerAction(QWebEnginePage::Reload); }

    void setZoom(double factor) override { m_page.setZoomFactor(factor); }

    double zoom() const override { return m_page.zoomFactor(); }

private:
    // The page goes before the profile in which it lives.
    SiteFolder m_site;
    SiteGuard m_guard;
    QWebEngineProfile m_profile;
    SitePage m_page;
    QWebEngineView m_view;
};

} // namespace

} // namespace stemwright

/// The library's one entry point.
extern "C" Q_DECL_EXPORT stemwright::SiteView* stemwrightSiteView(const stemwright::LocalSite& site,
                                                                  const stemwright::SiteViewReports& reports)
{
    return new stemwright::WebSiteView(site, reports);
}
