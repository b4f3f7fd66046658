// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "tour.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFileInfo>
#include <QtCore/QTimer>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace stemwright::screenshots
{

namespace
{

constexpr int millisecondsToDrawAPage = 3'000;

void GoToRow(QAbstractItemView& list, int row)
{
    list.setCurrentIndex(list.model()->index(row, 0));
}

} // namespace

/// The setups, one that is run, and its site.
void Tour::webPages()
{
    m_camera.inside(
        QStringLiteral("frmSetups"), [this] { trigger("mnuCreateWebPages"); },
        [this](QWidget& setups) {
            m_camera.take(setups, QStringLiteral("frmsetups"));
            m_camera.takeModal(QStringLiteral("frmNewSetup"), [this, &setups] { press(setups, "cmdNew"); });
            m_camera.inside(
                QStringLiteral("frmSiteWizard"), [this, &setups] { press(setups, "cmdEdit"); },
                [this](QWidget& wizard) {
                    items(wizard);
                    build(wizard);
                });
            press(setups, "cmdClose");
        });
    m_camera.takeModal(QStringLiteral("frmSelectSetup"), [this] { trigger("mnuViewWebPages"); });
    m_camera.takeModal(QStringLiteral("frmUpload"), [this] { trigger("mnuUploadWebPages"); });
}

void Tour::items(QWidget& wizard)
{
    m_camera.inside(
        QStringLiteral("frmItemsToInclude"), [this, &wizard] { press(wizard, "cmdItems"); },
        [this](QWidget& items) {
            constexpr int birth = 5;
            GoToRow(control<QAbstractItemView>(items, "hfgItems"), birth);
            m_camera.take(items, QStringLiteral("frmitemstoinclude"));
            m_camera.takeModal(QStringLiteral("frmItemOptions"), [this, &items] { press(items, "cmdOptions"); });
        });
}

void Tour::build(QWidget& wizard)
{
    auto& folder = control<QLineEdit>(wizard, "txtWebPageFolder");
    folder.setText(QFileInfo(m_tree).path() + QStringLiteral("/site"));
    Q_EMIT folder.textEdited(folder.text());
    auto& pages = control<QListWidget>(wizard, "lstPages");
    pages.setCurrentRow(pages.count() - 1);
    const auto browser = [this](QWidget& window) {
        QEventLoop loop;
        QTimer::singleShot(millisecondsToDrawAPage, &loop, &QEventLoop::quit);
        loop.exec();
        m_camera.take(window, QStringLiteral("frmwebbrowser"));
    };
    const auto confirm = [this, browser](QWidget& window) {
        auto& place = control<QLabel>(window, "lblConfirm2");
        place.setText(place.text().section(u'\n', 0, 0) + QStringLiteral("\n/media/molly/Album/whiskerton-site"));
        m_camera.take(window, QStringLiteral("frmconfirm"));
        m_camera.inside(
            QStringLiteral("frmWebBrowser"), [this, &window] { press(window, "cmdBrowser"); }, browser);
    };
    m_camera.inside(
        QStringLiteral("messageBox"), [this, &wizard] { press(wizard, "cmdFinish"); },
        [this, confirm](QWidget& question) {
            const auto create = [&question] { static_cast<QMessageBox&>(question).button(QMessageBox::Ok)->click(); };
            m_camera.inside(QStringLiteral("frmConfirm"), create, confirm);
        });
}

} // namespace stemwright::screenshots
