// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/oldalbum/frmimpprev2album.h"

#include "app/common/controls.h"
#include "oldalbum/importprev2album.h"
#include "oldalbum/messages.h"

#include <QtCore/QDir>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

class frmImpPreV2Album : public QDialog
{
public:
    frmImpPreV2Album(FamilyFile& file, Environment& environment, QWidget* parent)
        : QDialog(parent), m_file(file), m_environment(environment), m_buttons(MakeOkCancel(*this))
    {
        setObjectName(QStringLiteral("frmImpPreV2Album"));
        setWindowTitle(QStringLiteral("Import Pre-V2 Photo Album"));
        ResizeForLetters(*this, 560, 190);
        layOut();
        setButtons();
        RememberPlace(*this, environment.settings);
    }

    void accept() override
    {
        ImportPreV2Album(m_file, QDir::fromNativeSeparators(txtInputFilename->text().trimmed()), m_environment,
                         m_report);
        if (m_report.outcome != AlbumImportOutcome::Failed) {
            QDialog::accept();
        }
    }

    const AlbumImportReport& report() const { return m_report; }

private:
    void layOut()
    {
        QLabel* explanation = MakeLabel("lblExplanation", oldalbummessages::ImportExplanation());
        explanation->setWordWrap(true);
        auto* label = new QLabel(QStringLiteral("Photo &album:"));
        label->setBuddy(txtInputFilename);
        QPushButton* browse =
            MakeButton("cmdBrowseInput", QStringLiteral("&Browse..."), QStringLiteral("Choose the old album's file"));
        connect(browse, &QPushButton::clicked, this, &frmImpPreV2Album::browse);
        connect(txtInputFilename, &QLineEdit::textChanged, this, &frmImpPreV2Album::setButtons);
        auto* file = new QHBoxLayout;
        file->addWidget(label);
        file->addWidget(txtInputFilename, 1);
        file->addWidget(browse);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addLayout(file);
        layout->addStretch();
        layout->addWidget(m_buttons);
        txtInputFilename->setFocus();
    }

    void setButtons()
    {
        m_buttons->button(QDialogButtonBox::Ok)->setEnabled(!txtInputFilename->text().trimmed().isEmpty());
    }

    void browse()
    {
        if (const auto path = ChooseOldAlbum(m_environment.talk)) {
            txtInputFilename->setText(QDir::toNativeSeparators(*path));
        }
    }

    FamilyFile& m_file;
    Environment& m_environment;
    AlbumImportReport m_report;
    QDialogButtonBox* m_buttons;
    QLineEdit* txtInputFilename =
        MakeLine("txtInputFilename", QStringLiteral("The file of the old album; its name ends in .mdb"));
};

} // namespace

AlbumImportReport ShowAlbumImport(FamilyFile& file, Environment& environment, QWidget* parent)
{
    frmImpPreV2Album window(file, environment, parent);
    window.exec();
    return window.report();
}

} // namespace stemwright
