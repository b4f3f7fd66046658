// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/frmitemoptions.h"

#include "app/common/controls.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

namespace stemwright
{

namespace
{

class frmItemOptions : public QDialog
{
public:
    frmItemOptions(const SelectedItem& item, const std::function<bool(const ItemOptions&)>& apply, QWidget* parent)
        : QDialog(parent), m_item(item), m_apply(apply)
    {
        setObjectName(QStringLiteral("frmItemOptions"));
        setWindowTitle(QStringLiteral("Item Options"));
        chkInTree->setObjectName(QStringLiteral("chkInTree"));
        chkPrivate->setObjectName(QStringLiteral("chkPrivate"));
        auto* form = new QFormLayout(this);
        QLabel* name = MakeLabel("lblItem", item.name);
        QFont bold = name->font();
        bold.setBold(true);
        name->setFont(bold);
        form->addRow(name);
        form->addRow(chkInTree);
        cboBeforeItem = addTexts(*form, "cboBeforeItem", QStringLiteral("Text/marks &before item:"));
        cboBeforePlace = addTexts(*form, "cboBeforePlace", QStringLiteral("Text/marks before p&lace/event:"));
        cboAfterItem = addTexts(*form, "cboAfterItem", QStringLiteral("Text/marks &after item:"));
        form->addRow(chkPrivate);
        form->addRow(MakeOkCancel(*this));
        connect(chkInTree, &QCheckBox::toggled, this, &frmItemOptions::enableTexts);
        show(ItemOptions::of(item));
    }

    void accept() override
    {
        if (m_apply(options())) {
            QDialog::accept();
        }
    }

private:
    /// A box for a free text that offers the usual ones, with its label.
    QComboBox* addTexts(QFormLayout& form, const char* name, const QString& caption)
    {
        auto* box = new QComboBox;
        box->setObjectName(QLatin1StringView(name));
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        // Completing would make "'" of a mark that only begins with it.
        box->setCompleter(nullptr);
        if (m_item.kind == QStringLiteral("dp")) {
            box->addItem(QStringLiteral(":"));
        }
        box->addItems({QStringLiteral("\""), QStringLiteral("'")});
        form.addRow(caption, box);
        m_labels.push_back(form.labelForField(box));
        return box;
    }

    void show(const ItemOptions& options)
    {
        chkInTree->setChecked(options.inTree);
        cboBeforeItem->setEditText(options.beforeItem);
        cboBeforePlace->setEditText(options.beforePlace);
        cboAfterItem->setEditText(options.afterItem);
        chkPrivate->setChecked(options.isPrivate);
        enableTexts();
    }

    ItemOptions options() const
    {
        return {chkInTree->isChecked(), cboBeforeItem->currentText(), cboBeforePlace->currentText(),
                cboAfterItem->currentText(), chkPrivate->isChecked()};
    }

    void enableTexts()
    {
        const ItemOptions now = options();
        cboBeforeItem->setEnabled(MayChangeTexts(now));
        cboBeforePlace->setEnabled(MayChangeTextBeforePlace(m_item, now));
        cboAfterItem->setEnabled(MayChangeTexts(now));
        for (QWidget* label : m_labels) {
            label->setEnabled(static_cast<QLabel*>(label)->buddy()->isEnabled());
        }
    }

    const SelectedItem& m_item;
    const std::function<bool(const ItemOptions&)>& m_apply;
    std::vector<QWidget*> m_labels;
    QCheckBox* chkInTree =
        new QCheckBox(QStringLiteral("&Show this item in the family tree (not only in the personal page)"));
    QComboBox* cboBeforeItem = nullptr;
    QComboBox* cboBeforePlace = nullptr;
    QComboBox* cboAfterItem = nullptr;
    QCheckBox* chkPrivate = new QCheckBox(QStringLiteral("&Make this item private "));
};

} // namespace

void EditItemOptions(const SelectedItem& item, const std::function<bool(const ItemOptions&)>& apply, QWidget* parent)
{
    frmItemOptions(item, apply, parent).exec();
}

} // namespace stemwright
