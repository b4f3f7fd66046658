// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/frmexporttableastext.h"

#include "app/common/controls.h"
#include "export/messages.h"
#include "export/tableexport.h"

#include <QtCore/QDir>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

struct OfferedEncoding {
    const char* caption;
    TextEncoding encoding;
};

constexpr OfferedEncoding offeredEncodings[] = {{"System default", TextEncoding::System},
                                                {"UTF-8", TextEncoding::Utf8},
                                                {"Windows-1252", TextEncoding::Windows1252}};

class frmExportTableAsText : public QDialog
{
public:
    frmExportTableAsText(const PictureTable& table, const QString& familyFile, Environment& environment,
                         QWidget* parent)
        : QDialog(parent), m_table(table), m_familyFile(familyFile), m_environment(environment)
    {
        setObjectName(QStringLiteral("frmExportTableAsText"));
        setWindowTitle(QStringLiteral("Export Table to Text File"));
        ResizeForLetters(*this, 560, 240);
        txtOutputFilename->setText(
            QDir::toNativeSeparators(ProposedExportPath(QDir::currentPath(), table.queryName())));
        cboDelimiter->setObjectName(QStringLiteral("cboDelimiter"));
        cboDelimiter->setEditable(true);
        cboDelimiter->setInsertPolicy(QComboBox::NoInsert);
        cboDelimiter->addItems(OfferedDelimiters());
        cboEncoding->setObjectName(QStringLiteral("cboEncoding"));
        for (const OfferedEncoding& offered : offeredEncodings) {
            cboEncoding->addItem(QLatin1StringView(offered.caption));
        }
        layOut();
        RememberPlace(*this, environment.settings);
    }

    void accept() override
    {
        const TableExport wanted{QDir::fromNativeSeparators(txtOutputFilename->text()), cboDelimiter->currentText(),
                                 offeredEncodings[cboEncoding->currentIndex()].encoding};
        if (ExportTableAsText(m_table, wanted, m_familyFile, m_environment.talk)) {
            QDialog::accept();
        }
    }

private:
    void layOut()
    {
        QLabel* explanation = MakeLabel("lblExplanation", exportmessages::Explanation(m_table.queryName()));
        explanation->setWordWrap(true);
        QPushButton* browse = MakeButton("cmdBrowse", QStringLiteral("&Browse..."));
        connect(browse, &QPushButton::clicked, this, &frmExportTableAsText::browse);
        auto* file = new QHBoxLayout;
        file->addWidget(txtOutputFilename, 1);
        file->addWidget(browse);
        auto* fileLabel = new QLabel(QStringLiteral("Output &file:"));
        fileLabel->setBuddy(txtOutputFilename);
        auto* form = new QFormLayout;
        form->addRow(fileLabel, file);
        form->addRow(QStringLiteral("&Delimiter:"), cboDelimiter);
        form->addRow(QStringLiteral("&Encoding:"), cboEncoding);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addLayout(form);
        layout->addStretch();
        layout->addWidget(MakeOkCancel(*this));
        txtOutputFilename->setFocus();
    }

    void browse()
    {
        if (const auto path = m_environment.talk.chooseFile(exportmessages::ChooseOutputFile())) {
            txtOutputFilename->setText(QDir::toNativeSeparators(*path));
        }
    }

    const PictureTable& m_table;
    QString m_familyFile;
    Environment& m_environment;
    QLineEdit* txtOutputFilename = MakeLine("txtOutputFilename");
    QComboBox* cboDelimiter = new QComboBox;
    QComboBox* cboEncoding = new QComboBox;
};

} // namespace

void ShowExportWindow(const PictureTable& table, const QString& familyFile, Environment& environment, QWidget* parent)
{
    frmExportTableAsText(table, familyFile, environment, parent).exec();
}

} // namespace stemwright
