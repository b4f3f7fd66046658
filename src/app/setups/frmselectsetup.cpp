// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/setups/frmselectsetup.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "app/viewer/frmwebbrowser.h"
#include "web/setup/setupviewing.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

class frmSelectSetup : public QDialog
{
public:
    frmSelectSetup(Connection& connection, Talk& talk, const QStringList& setups, QWidget* parent)
        : QDialog(parent), m_connection(connection), m_talk(talk)
    {
        setObjectName(QStringLiteral("frmSelectSetup"));
        setWindowTitle(QStringLiteral("Select Setup for Viewing"));
        ResizeForLetters(*this, 360, 280);
        lstSetups->setObjectName(QStringLiteral("lstSetups"));
        lstSetups->addItems(setups);
        lstSetups->setCurrentRow(0);
        // Return presses OK by itself.
        connect(lstSetups, &QListWidget::itemDoubleClicked, this, &frmSelectSetup::accept);
        QLabel* explanation = MakeLabel("lblExplanation", appmessages::SelectSetupExplanation());
        explanation->setWordWrap(true);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addWidget(lstSetups, 1);
        layout->addWidget(MakeOkCancel(*this));
    }

    void accept() override
    {
        m_page = FindPagesToView(m_connection, lstSetups->currentItem()->text(), m_talk);
        if (m_page) {
            QDialog::accept();
        }
    }

    const std::optional<QString>& page() const { return m_page; }

private:
    Connection& m_connection;
    Talk& m_talk;
    std::optional<QString> m_page;
    QListWidget* lstSetups = new QListWidget;
};

} // namespace

void ViewWebPages(Connection& connection, Environment& environment, QWidget* parent)
{
    const QStringList setups = SetupsToView(connection, environment.talk);
    if (setups.isEmpty()) {
        return;
    }
    frmSelectSetup window(connection, environment.talk, setups, parent);
    if (window.exec() == QDialog::Accepted) {
        ShowWebBrowser(LocalSite::published(*window.page()), environment, parent);
    }
}

} // namespace stemwright
