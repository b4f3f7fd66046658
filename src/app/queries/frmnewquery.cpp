// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/queries/frmnewquery.h"

#include "app/common/controls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

namespace stemwright
{

namespace
{

class frmNewQuery : public QDialog
{
public:
    frmNewQuery(QueryManager& manager, const QString& source, QWidget& parent)
        : QDialog(&parent), m_manager(manager), m_source(source)
    {
        setObjectName(QStringLiteral("frmNewQuery"));
        setWindowTitle(QStringLiteral("New Query"));
        chkClone->setObjectName(QStringLiteral("chkClone"));
        chkClone->setEnabled(!source.isEmpty());
        auto* form = new QFormLayout(this);
        form->addRow(QStringLiteral("&Name of the new query:"), txtName);
        form->addRow(chkClone);
        form->addRow(MakeOkCancel(*this));
        txtName->setFocus();
    }

    void accept() override
    {
        const bool made =
            chkClone->isChecked() ? m_manager.clone(m_source, txtName->text()) : m_manager.create(txtName->text());
        if (made) {
            QDialog::accept();
        } else {
            txtName->setFocus();
            txtName->selectAll();
        }
    }

private:
    QueryManager& m_manager;
    QString m_source;
    QLineEdit* txtName = MakeLine("txtQueryName");
    QCheckBox* chkClone = new QCheckBox(QStringLiteral("&Clone the selected query"));
};

} // namespace

bool AskForNewQuery(QueryManager& manager, const QString& source, QWidget& parent)
{
    return frmNewQuery(manager, source, parent).exec() == QDialog::Accepted;
}

} // namespace stemwright
