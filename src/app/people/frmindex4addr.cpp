// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/people/frmindex4addr.h"

#include "app/common/controls.h"
#include "app/common/namelistpanel.h"
#include "app/people/frmcontactinfo.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

void ShowListOfNames(NameIndex& index, Connection& connection, Environment& environment, QWidget* parent)
{
    QDialog window(parent);
    window.setObjectName(QStringLiteral("frmIndex4Addr"));
    window.setWindowTitle(QStringLiteral("List of Names"));
    ResizeForLetters(window, 620, 480);
    auto* names = new NameListPanel(index, "dtgNames",
                                    {{NameColumn::Name, QStringLiteral("Name")},
                                     {NameColumn::BirthDate, QStringLiteral("Birth Date")},
                                     {NameColumn::DeathDate, QStringLiteral("Death Date")}},
                                    HeaderClicks::Ignored, environment.talk);
    QPushButton* contact = MakeButton("cmdContactInfo", QStringLiteral("&Contact Info..."));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdClose"));
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    buttons->addButton(contact, QDialogButtonBox::ActionRole);
    names->needsPerson(*contact);
    const auto showContact = [&] { EditContact(connection, names->search().chosen().id, environment, &window); };
    QObject::connect(contact, &QPushButton::clicked, &window, showContact);
    QObject::connect(names, &NameListPanel::activated, &window, showContact);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(names);
    layout->addWidget(buttons);
    RememberPlace(window, environment.settings);
    window.exec();
}

} // namespace stemwright
