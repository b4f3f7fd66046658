// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/frmconfirm.h"

#include "app/common/controls.h"
#include "app/viewer/frmwebbrowser.h"
#include "web/messages.h"
#include "web/sitebuild.h"

#include <QtCore/QFileInfo>
#include <QtGui/QIcon>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <array>

namespace stemwright
{

namespace
{

constexpr int signSize = 64;
constexpr int spacing = 12;
constexpr int textWidth = 500;

class frmConfirm : public QDialog
{
public:
    frmConfirm(Environment& environment, QWidget* parent) : QDialog(parent), m_environment(environment)
    {
        setObjectName(QStringLiteral("frmConfirm"));
        auto* sign = new QLabel;
        sign->setObjectName(QStringLiteral("imgSign"));
        sign->setPixmap(QIcon(environment.application.file(QStringLiteral("icons/stemwright.svg"))).pixmap(signSize));
        auto* texts = new QVBoxLayout;
        int number = 0;
        for (QLabel*& label : lblConfirm) {
            label = MakeLabel("");
            label->setObjectName(QStringLiteral("lblConfirm%1").arg(++number));
            label->setWordWrap(true);
            label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
            label->setMinimumWidth(ForLetters(*this, textWidth));
            texts->addWidget(label);
        }
        chkDontShow->setObjectName(QStringLiteral("chkDontShow"));

        QPushButton* browser = MakeButton("cmdBrowser", QStringLiteral("&View My Web Pages"));
        QPushButton* ok = MakeButton("cmdOK", QStringLiteral("&OK"));
        browser->setDefault(true);
        connect(browser, &QPushButton::clicked, this, [this] {
            ShowWebBrowser(LocalSite::published(m_folder + QStringLiteral("/index.html")), m_environment, this);
        });
        connect(ok, &QPushButton::clicked, this, &frmConfirm::accept);
        QHBoxLayout* buttons = MakeRow({browser, ok});
        buttons->insertStretch(0);
        texts->addStretch();

        auto* layout = new QGridLayout(this);
        layout->setContentsMargins(16, 16, 16, 12);
        layout->setSpacing(spacing);
        layout->addWidget(sign, 0, 0, Qt::AlignTop);
        layout->addLayout(texts, 0, 1);
        layout->addWidget(chkDontShow, 1, 1);
        layout->addLayout(buttons, 2, 0, 1, 2);
    }

    /// Tells it the site's folder, before it is shown.
    void SetFormName(const QString& folder)
    {
        m_folder = folder;
        setWindowTitle(webmessages::WebPagesCreated(folder).title);
        const auto texts = webmessages::WebPagesCreatedTexts(folder);
        for (std::size_t line = 0; line < texts.size(); ++line) {
            lblConfirm[line]->setText(texts[line]);
        }
    }

    /// However it is closed.
    void done(int result) override
    {
        if (chkDontShow->isChecked()) {
            m_environment.settings.setValue(setting::exportWizard, setting::confirmScreen, QStringLiteral("0"));
        }
        QDialog::done(result);
    }

private:
    Environment& m_environment;
    QString m_folder;
    std::array<QLabel*, 3> lblConfirm{};
    QCheckBox* chkDontShow = new QCheckBox(QStringLiteral("&Don't show this dialog in the future."));
};

} // namespace

void ConfirmWebPages(const QString& index, Environment& environment, QWidget* parent)
{
    if (WantsConfirmation(environment.settings)) {
        frmConfirm confirm(environment, parent);
        confirm.SetFormName(QFileInfo(index).path());
        confirm.exec();
    }
}

} // namespace stemwright
