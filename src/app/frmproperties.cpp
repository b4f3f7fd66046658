// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/frmproperties.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "store/engine/engineerror.h"
#include "store/file/fileproperties.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

namespace stemwright
{

namespace
{

QString ImportTime(const QString& iso)
{
    const QDateTime time = QDateTime::fromString(iso, Qt::ISODate);
    return time.isValid() ? QLocale().toString(time, QLocale::ShortFormat) : iso;
}

void AddRow(QFormLayout& form, const char* name, const QString& caption, const QString& text)
{
    QLabel* value = MakeLabel(name, text);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    value->setWordWrap(true);
    form.addRow(caption, value);
}

void Show(const FileProperties& properties, Settings& settings, QWidget* parent)
{
    QDialog window(parent);
    window.setObjectName(QStringLiteral("frmProperties"));
    window.setWindowTitle(QStringLiteral("Properties"));
    ResizeForLetters(window, 480, 300);
    const QLocale locale;
    const auto number = [&locale](qint64 value) { return locale.toString(value); };
    auto* form = new QFormLayout;
    AddRow(*form, "lblPath", QStringLiteral("Family file:"), QDir::toNativeSeparators(properties.path));
    AddRow(*form, "lblSize", QStringLiteral("Size:"), locale.formattedDataSize(properties.size));
    AddRow(*form, "lblFileVersion", QStringLiteral("Version:"), properties.version);
    AddRow(*form, "lblIndividuals", QStringLiteral("Individuals:"), number(properties.individuals));
    AddRow(*form, "lblFamilies", QStringLiteral("Families:"), number(properties.families));
    AddRow(*form, "lblPictures", QStringLiteral("Pictures:"), number(properties.pictures));
    AddRow(*form, "lblMarks", QStringLiteral("Persons in pictures:"), number(properties.marks));
    AddRow(*form, "lblGedcom", QStringLiteral("GEDCOM file:"),
           properties.gedcomFile.isEmpty() ? QStringLiteral("none imported")
                                           : QDir::toNativeSeparators(properties.gedcomFile));
    AddRow(*form, "lblImportDate", QStringLiteral("Imported:"), ImportTime(properties.importDate));
    auto* layout = new QVBoxLayout(&window);
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(MakeOk(window));
    RememberPlace(window, settings);
    window.exec();
}

} // namespace

void ShowProperties(FamilyFile& file, Environment& environment, QWidget* parent)
{
    std::optional<FileProperties> properties;
    try {
        properties = PropertiesOf(file.connection());
    } catch (const std::exception& exception) {
        environment.talk.tell(appmessages::Failed(ReasonText(exception)));
        return;
    }
    Show(*properties, environment.settings, parent);
}

} // namespace stemwright
