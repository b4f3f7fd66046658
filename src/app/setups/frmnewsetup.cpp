// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/setups/frmnewsetup.h"

#include "app/common/controls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>

namespace stemwright
{

namespace
{

class frmNewSetup : public QDialog
{
public:
    frmNewSetup(SetupManager& manager, const QString& source, QWidget& parent) : QDialog(&parent), m_manager(manager)
    {
        setObjectName(QStringLiteral("frmNewSetup"));
        setWindowTitle(QStringLiteral("New Setup"));
        ResizeForLetters(*this, 360, 300);
        chkClone->setObjectName(QStringLiteral("chkClone"));
        lstSetups->setObjectName(QStringLiteral("lstSetups"));
        lstSetups->addItems(manager.names());
        const QList<QListWidgetItem*> found = lstSetups->findItems(source, Qt::MatchFixedString);
        lstSetups->setCurrentItem(found.value(0, lstSetups->item(0)));
        lstSetups->setEnabled(false);
        chkClone->setEnabled(lstSetups->count() > 0);
        connect(chkClone, &QCheckBox::toggled, lstSetups, &QWidget::setEnabled);
        auto* form = new QFormLayout(this);
        form->addRow(QStringLiteral("&Name of the new setup:"), txtName);
        form->addRow(chkClone);
        form->addRow(lstSetups);
        form->addRow(MakeOkCancel(*this));
        txtName->setFocus();
    }

    void accept() override
    {
        const QString name = txtName->text();
        if (chkClone->isChecked() ? m_manager.clone(lstSetups->currentItem()->text(), name) : m_manager.create(name)) {
            QDialog::accept();
        } else {
            txtName->setFocus();
            txtName->selectAll();
        }
    }

private:
    SetupManager& m_manager;
    QLineEdit* txtName = MakeLine("txtSetupName");
    QCheckBox* chkClone = new QCheckBox(QStringLiteral("&Clone this setup:"));
    QListWidget* lstSetups = new QListWidget;
};

} // namespace

bool AskForNewSetup(SetupManager& manager, const QString& source, QWidget& parent)
{
    return frmNewSetup(manager, source, parent).exec() == QDialog::Accepted;
}

} // namespace stemwright
