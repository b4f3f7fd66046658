// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/people/frmpeople.h"

#include "app/common/controls.h"
#include "app/common/namelistpanel.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

std::optional<ChosenPerson> ChoosePerson(NameIndex& index, Environment& environment, QWidget* parent)
{
    QDialog window(parent);
    window.setObjectName(QStringLiteral("frmPeople"));
    window.setWindowTitle(QStringLiteral("Index of Names"));
    ResizeForLetters(window, 680, 480);
    auto* names = new NameListPanel(index, "dtgPeople",
                                    {{NameColumn::PersonId, QStringLiteral("Person ID")},
                                     {NameColumn::Name, QStringLiteral("Name")},
                                     {NameColumn::BirthDate, QStringLiteral("Birth Date")},
                                     {NameColumn::DeathDate, QStringLiteral("Death Date")}},
                                    HeaderClicks::Sort, environment.talk);
    QDialogButtonBox* buttons = MakeOkCancel(window);
    names->needsPerson(*buttons->button(QDialogButtonBox::Ok));
    QObject::connect(names, &NameListPanel::activated, &window, &QDialog::accept);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(names);
    layout->addWidget(buttons);
    RememberPlace(window, environment.settings);
    return window.exec() == QDialog::Accepted ? std::optional(names->search().chosen()) : std::nullopt;
}

} // namespace stemwright
