// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/setups/frmupload.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "app/common/notice.h"
#include "store/engine/engineerror.h"
#include "web/setup/setupmessages.h"
#include "web/setup/upload.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace stemwright
{

namespace
{

constexpr int usualPort = 21;
constexpr int lastPort = 65'535;

class frmUpload : public QDialog
{
public:
    frmUpload(const QStringList& sites, Environment& environment, QWidget* parent)
        : QDialog(parent), m_talk(environment.talk)
    {
        setObjectName(QStringLiteral("frmUpload"));
        setWindowTitle(QStringLiteral("Upload Web Pages"));
        ResizeForLetters(*this, 480, 340);
        prepareControls(sites);
        layOut();
        show(LoadUploadSettings(environment.settings));
        RememberPlace(*this, environment.settings);
    }

private:
    void prepareControls(const QStringList& sites)
    {
        dcbSites->setObjectName(QStringLiteral("dcbSites"));
        dcbSites->addItems(sites);
        dcbSites->setEnabled(!sites.isEmpty());
        // A long name is cut rather than the window widened.
        dcbSites->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        connect(dcbSites, &QComboBox::currentTextChanged, this, &frmUpload::proposeSubdir);
        connect(txtRootSubdir, &QLineEdit::textChanged, this, &frmUpload::showFullPath);
        connect(txtSubdir, &QLineEdit::textChanged, this, &frmUpload::showFullPath);
        txtFullPath->setReadOnly(true);
        txtFullPath->setFrame(false);
        QPalette palette;
        palette.setBrush(QPalette::Base, Qt::transparent);
        txtFullPath->setPalette(palette);
        txtPassword->setEchoMode(QLineEdit::Password);

        spnPort->setObjectName(QStringLiteral("spnPort"));
        spnPort->setRange(1, lastPort);
        chkDefaultPort->setObjectName(QStringLiteral("chkDefaultPort"));
        connect(chkDefaultPort, &QCheckBox::toggled, this, [this](bool usual) {
            spnPort->setEnabled(!usual);
            spnPort->setValue(usual ? usualPort : spnPort->value());
        });
        chkDefaultPort->setChecked(true);
    }

    void layOut()
    {
        QHBoxLayout* port = MakeRow({spnPort, chkDefaultPort});
        port->addStretch();
        auto* form = new QFormLayout;
        form->addRow(QStringLiteral("&FTP Server:"), txtServer);
        auto* portLabel = new QLabel(QStringLiteral("P&ort:"));
        portLabel->setBuddy(spnPort);
        form->addRow(portLabel, port);
        form->addRow(QStringLiteral("User&name:"), txtUsername);
        form->addRow(QStringLiteral("&Password:"), txtPassword);
        form->addRow(QStringLiteral("&Root directory for all sites (optional):"), txtRootSubdir);
        form->addRow(QStringLiteral("&Web site setup:"), dcbSites);
        form->addRow(QStringLiteral("Subd&irectory for this site:"), txtSubdir);
        form->addRow(QStringLiteral("Full &directory path for this site:"), txtFullPath);

        QPushButton* save = MakeButton("cmdSave", QStringLiteral("&Save Settings"));
        QPushButton* upload = MakeButton("cmdUpload", QStringLiteral("&Upload"));
        QPushButton* close = MakeButton("cmdClose", QStringLiteral("&Close"));
        upload->setEnabled(dcbSites->count() > 0);
        connect(save, &QPushButton::clicked, this, [this] { CheckUploadSettings(settings(), m_talk); });
        connect(close, &QPushButton::clicked, this, &frmUpload::reject);
        QHBoxLayout* buttons = MakeRow({save, upload, close});
        buttons->insertStretch(0);

        auto* explanation = new Notice(QStringLiteral("lblExplanation"));
        explanation->setText(appmessages::UploadExplanation());
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addSpacing(8);
        layout->addLayout(form);
        layout->addStretch();
        layout->addLayout(buttons);
    }

    void show(const UploadSettings& settings)
    {
        txtServer->setText(settings.server);
        txtUsername->setText(settings.username);
        txtPassword->setText(settings.password);
        txtRootSubdir->setText(settings.rootSubdir);
        proposeSubdir();
        showFullPath();
    }

    UploadSettings settings() const
    {
        return {txtServer->text(), txtUsername->text(), txtPassword->text(), txtRootSubdir->text()};
    }

    void proposeSubdir() { txtSubdir->setText(UploadSubdir(dcbSites->currentText())); }

    void showFullPath() { txtFullPath->setText(UploadPath(txtRootSubdir->text(), txtSubdir->text())); }

    Talk& m_talk;
    QLineEdit* txtServer = MakeLine("txtServer");
    QSpinBox* spnPort = new QSpinBox;
    QCheckBox* chkDefaultPort = new QCheckBox(QStringLiteral("Defaul&t FTP Port"));
    QLineEdit* txtUsername = MakeLine("txtUsername");
    QLineEdit* txtPassword = MakeLine("txtPassword");
    QLineEdit* txtRootSubdir = MakeLine("txtRootSubdir");
    QComboBox* dcbSites = new QComboBox;
    QLineEdit* txtSubdir = MakeLine("txtSubdir");
    QLineEdit* txtFullPath = MakeLine("txtFullPath");
};

} // namespace

void ShowUpload(Connection& connection, Environment& environment, QWidget* parent)
{
    QStringList sites;
    try {
        sites = SitesToUpload(connection);
    } catch (const std::exception& exception) {
        environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
        return;
    }
    frmUpload(sites, environment, parent).exec();
}

} // namespace stemwright
