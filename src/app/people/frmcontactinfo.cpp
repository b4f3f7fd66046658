// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/people/frmcontactinfo.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "index/contactediting.h"
#include "index/messages.h"
#include "store/engine/engineerror.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

namespace stemwright
{

namespace
{

class frmContactInfo : public QDialog
{
public:
    frmContactInfo(ContactEditing editing, Environment& environment, QWidget* parent)
        : QDialog(parent), m_editing(std::move(editing)), m_environment(environment)
    {
        setObjectName(QStringLiteral("frmContactInfo"));
        setWindowTitle(QStringLiteral("Contact Info"));
        ResizeForLetters(*this, 480, 360);
        txtEmail1->setText(m_editing.record().email1);
        txtEmail2->setText(m_editing.record().email2);
        txtWebPage->setText(m_editing.record().webPage);
        txtAddress->setObjectName(QStringLiteral("txtAddress"));
        txtAddress->setPlainText(m_editing.address());
        txtAddress->setReadOnly(true);
        txtAddress->setTabChangesFocus(true);
        txtPhone->setText(m_editing.phone());
        txtPhone->setReadOnly(true);
        QLabel* note = MakeLabel("lblNote", indexmessages::ReadOnlyNote());
        note->setWordWrap(true);

        auto* form = new QFormLayout;
        form->addRow(QStringLiteral("Name:"), MakeLabel("lblName", m_editing.name()));
        form->addRow(QStringLiteral("E-mail &1:"), txtEmail1);
        form->addRow(QStringLiteral("E-mail &2:"), txtEmail2);
        form->addRow(QStringLiteral("&Web page:"), txtWebPage);
        form->addRow(QStringLiteral("&Address:"), txtAddress);
        form->addRow(QStringLiteral("&Phone:"), txtPhone);
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(form);
        layout->addWidget(note);
        layout->addWidget(MakeOkCancel(*this));
        txtEmail1->setFocus();
        RememberPlace(*this, environment.settings);
    }

    void accept() override
    {
        try {
            m_editing.setRecord({txtEmail1->text(), txtEmail2->text(), txtWebPage->text()});
            m_editing.apply();
            QDialog::accept();
        } catch (const std::exception& exception) {
            m_environment.talk.tell(appmessages::Failed(ReasonText(exception)));
        }
    }

private:
    ContactEditing m_editing;
    Environment& m_environment;
    QLineEdit* txtEmail1 = MakeLine("txtEmail1");
    QLineEdit* txtEmail2 = MakeLine("txtEmail2");
    QLineEdit* txtWebPage = MakeLine("txtWebPage");
    QPlainTextEdit* txtAddress = new QPlainTextEdit;
    QLineEdit* txtPhone = MakeLine("txtPhone");
};

} // namespace

void EditContact(Connection& connection, int individualId, Environment& environment, QWidget* parent)
{
    try {
        frmContactInfo(ContactEditing(connection, individualId), environment, parent).exec();
    } catch (const std::exception& exception) {
        environment.talk.tell(appmessages::Failed(ReasonText(exception)));
    }
}

} // namespace stemwright
