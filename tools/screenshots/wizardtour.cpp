// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "tour.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright::screenshots
{

namespace
{

constexpr const char* pageNames[] = {"introduction", "step1", "step2", "firstpage", "general", "display", "finished"};

/// Types a text, as a hand does, so that it is written.
void Type(QLineEdit& box, const QString& text)
{
    box.setText(text);
    Q_EMIT box.textEdited(text);
}

} // namespace

void Tour::wizard()
{
    const auto leave = [this](QWidget& wizard) {
        m_camera.inside(
            QStringLiteral("messageBox"), [this, &wizard] { press(wizard, "cmdCancel"); },
            [](QWidget& box) { static_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click(); });
    };
    const auto visit = [this, leave](QWidget& wizard) {
        // Where the site goes is nobody's business either.
        Type(control<QLineEdit>(wizard, "txtWebPageFolder"), QStringLiteral("/media/molly/Album/whiskerton-site"));
        auto& pages = control<QListWidget>(wizard, "lstPages");
        for (int page = 0; page < pages.count(); ++page) {
            pages.setCurrentRow(page);
            if (page == pages.count() - 2) {
                control<QTableView>(wizard, "dtgTrees").selectRow(0);
                press(wizard, "cmdEdit");
            }
            m_camera.take(wizard, QStringLiteral("frmsitewizard-") + QLatin1StringView(pageNames[page]));
        }
        constexpr int folderPage = 2;
        pages.setCurrentRow(folderPage);
        Type(control<QLineEdit>(wizard, "txtWebPageFolder"), QStringLiteral("/"));
        m_camera.take(wizard, QStringLiteral("frmsitewizard-warning"));
        leave(wizard);
    };
    m_camera.inside(
        QStringLiteral("frmSetups"), [this] { trigger("mnuCreateWebPages"); },
        [this, visit](QWidget& setups) {
            m_camera.inside(
                QStringLiteral("frmSiteWizard"), [this, &setups] { press(setups, "cmdEdit"); }, visit);
            press(setups, "cmdClose");
        });
}

} // namespace stemwright::screenshots
