// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/viewer/frmwebbrowser.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "base/error.h"

#include <QtGui/QDesktopServices>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

constexpr double zoomStep = 1.2;

void OpenElsewhere(const QUrl& address, Talk& talk)
{
    if (!QDesktopServices::openUrl(address)) {
        talk.tell(appmessages::CannotOpenAddress(address.toDisplayString(QUrl::PreferLocalFile)));
    }
}

class frmWebBrowser : public QDialog
{
public:
    /// Throws Error when the viewer is not installed.
    frmWebBrowser(const LocalSite& site, Environment& environment, QWidget* parent)
        : QDialog(parent, Qt::Window), m_view(OpenSiteView(site, reports(environment.talk)))
    {
        setObjectName(QStringLiteral("frmWebBrowser"));
        setTitle({});
        ResizeForLetters(*this, 1024, 720);
        layOut();
        addKeys();
        PlaceOnScreen(*this);
        RememberPlace(*this, environment.settings);
        m_view->widget().setFocus();
    }

private:
    SiteViewReports reports(Talk& talk)
    {
        SiteViewReports reports;
        reports.titled = [this](const QString& title) { setTitle(title); };
        reports.backChanged = [this](bool enabled) { cmdBack->setEnabled(enabled); };
        reports.forwardChanged = [this](bool enabled) { cmdFwd->setEnabled(enabled); };
        reports.hovered = [this](const QString& address) {
            lblStatusLine->setText(QUrl(address).toDisplayString(QUrl::PreferLocalFile));
        };
        reports.left = [&talk](const QUrl& address) { OpenElsewhere(address, talk); };
        reports.failed = [this] { lblStatusLine->setText(appmessages::PageCannotBeShown()); };
        return reports;
    }

    void setTitle(const QString& title) { setWindowTitle(QStringLiteral("Web Browser - ") + title); }

    void layOut()
    {
        m_view->widget().setObjectName(QStringLiteral("webWindow"));
        cmdBack->setEnabled(false);
        cmdFwd->setEnabled(false);
        // A long address must not widen the window.
        lblStatusLine->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        QPushButton* close = MakeButton("cmdClose", QStringLiteral("&Close"));
        connect(cmdBack, &QPushButton::clicked, this, [this] { m_view->back(); });
        connect(cmdFwd, &QPushButton::clicked, this, [this] { m_view->forward(); });
        connect(close, &QPushButton::clicked, this, &frmWebBrowser::reject);
        QHBoxLayout* lower = MakeRow({cmdBack, cmdFwd, lblStatusLine, close});
        lower->setContentsMargins(8, 0, 8, 6);
        lower->setStretchFactor(lblStatusLine, 1);
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&m_view->widget(), 1);
        layout->addLayout(lower);
    }

    void addKeys()
    {
        const auto add = [this](const QKeySequence& keys, auto action) {
            connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
        };
        const auto enlarge = [this](double factor) { m_view->setZoom(m_view->zoom() * factor); };
        add(Qt::ALT | Qt::Key_Left, [this] { cmdBack->click(); });
        add(Qt::ALT | Qt::Key_Right, [this] { cmdFwd->click(); });
        add(Qt::Key_F5, [this] { m_view->reload(); });
        add(Qt::Key_Escape, [this] { reject(); });
        add(Qt::CTRL | Qt::Key_W, [this] { reject(); });
        add(QKeySequence::ZoomIn, [enlarge] { enlarge(zoomStep); });
        // The plus sign of most keyboards without Shift.
        add(Qt::CTRL | Qt::Key_Equal, [enlarge] { enlarge(zoomStep); });
        add(QKeySequence::ZoomOut, [enlarge] { enlarge(1 / zoomStep); });
        add(Qt::CTRL | Qt::Key_0, [this] { m_view->setZoom(1); });
    }

    QPushButton* cmdBack = MakeButton("cmdBack", QStringLiteral("< &Back"));
    QPushButton* cmdFwd = MakeButton("cmdFwd", QStringLiteral("&Forward >"));
    QLabel* lblStatusLine = MakeLabel("lblStatusLine");
    /// It reports to the controls above, so it goes before they do.
    std::unique_ptr<SiteView> m_view;
};

} // namespace

void ShowWebBrowser(const LocalSite& site, Environment& environment, QWidget* parent)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::unique_ptr<frmWebBrowser> window;
    try {
        window = std::make_unique<frmWebBrowser>(site, environment, parent);
    } catch (const Error&) {
        // Told by nobody: the site is shown all the same.
    }
    QApplication::restoreOverrideCursor();
    if (window) {
        window->exec();
    } else {
        OpenElsewhere(QUrl::fromLocalFile(site.page), environment.talk);
    }
}

} // namespace stemwright
