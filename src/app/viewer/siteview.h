// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>

#include <functional>
#include <memory>

class QWidget;

/// The part of the viewer that needs Qt WebEngine, a whole browser of some hundred megabytes. It is a library of its
/// own, loaded when the first site is looked at, so that starting the program does not wait for it. Stands on Qt Gui.
namespace stemwright
{

/// A site on this computer: the page that is opened, and the folder that holds all that belongs to it, both full paths.
struct LocalSite {
    QString page;
    QString folder;

    /// The published site with this index.html, whose files are beside and below it.
    static LocalSite published(const QString& index);
};

/// What a view has to say while it lives.
struct SiteViewReports {
    /// Another page has come, or another title.
    std::function<void(const QString& title)> titled;
    /// Whether there are pages before and after this one.
    std::function<void(bool canGoBack)> backChanged;
    std::function<void(bool canGoForward)> forwardChanged;
    /// The address of the link under the mouse; empty for none.
    std::function<void(const QString& address)> hovered;
    /// The user followed a link that leads out of the site.
    std::function<void(const QUrl& address)> left;
    /// The page cannot be shown any more; reloading it may help.
    std::function<void()> failed;
};

/// A browser that shows the files of one site and nothing else.
class SiteView
{
public:
    SiteView() = default;
    SiteView(const SiteView&) = delete;
    SiteView& operator=(const SiteView&) = delete;
    virtual ~SiteView() = default;

    /// The control to lay out; it belongs to the view.
    virtual QWidget& widget() = 0;
    virtual void back() = 0;
    virtual void forward() = 0;
    virtual void reload() = 0;
    /// Enlarges the pages, 1 for their own size; what the browser does not offer becomes its nearest.
    virtual void setZoom(double factor) = 0;
    virtual double zoom() const = 0;
};

/// The library's one exported function, "stemwrightSiteView".
using MakeSiteView = SiteView* (*)(const LocalSite& site, const SiteViewReports& reports);

/// Loads the library and opens a site. Throws Error when the library is missing.
std::unique_ptr<SiteView> OpenSiteView(const LocalSite& site, const SiteViewReports& reports);

} // namespace stemwright
