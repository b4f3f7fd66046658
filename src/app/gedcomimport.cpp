// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/gedcomimport.h"

#include "app/common/controls.h"
#include "gedcom/importcommand.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

void ShowReport(const ImportReport& report, Settings& settings, QWidget& parent)
{
    QDialog window(&parent);
    window.setObjectName(QStringLiteral("frmImportReport"));
    window.setWindowTitle(QStringLiteral("GEDCOM Import"));
    ResizeForLetters(window, 560, 340);
    auto* text = new QPlainTextEdit(ReportText(report));
    text->setObjectName(QStringLiteral("txtReport"));
    text->setReadOnly(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(text);
    layout->addWidget(MakeOk(window));
    RememberPlace(window, settings);
    window.exec();
}

} // namespace

bool ImportGedcomInto(FamilyFile& file, Environment& environment, QWidget& parent)
{
    const std::optional<QString> path = ChooseGedcomFile(environment);
    if (!path) {
        return false;
    }
    ImportReport report;
    ImportGedcomFile(file, *path, environment, report);
    if (report.outcome == ImportOutcome::Failed) {
        return false;
    }
    ShowReport(report, environment.settings, parent);
    return true;
}

} // namespace stemwright
