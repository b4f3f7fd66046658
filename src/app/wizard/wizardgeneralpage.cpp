// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/controls.h"
#include "app/wizard/frmitemstoinclude.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace stemwright
{

namespace
{

/// Who is shown on the site, and what of them.
class GeneralPage : public WizardForm
{
public:
    explicit GeneralPage(const WizardContext& context) : WizardForm(context, WizardPage::General)
    {
        auto* privacy = new QFormLayout;
        privacy->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
        privacy->addRow(QStringLiteral("P&rivacy age, in years:"), number("MaxPrivacyAge"));
        body().addLayout(privacy);
        addText("lblPrivacyRule", wizardtexts::PrivacyRule());
        body().addWidget(yesNo("HideLiving", QStringLiteral("Hi&de privacy-protected persons")));
        body().addSpacing(fontMetrics().lineSpacing());

        auto* generations = new QFormLayout;
        generations->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
        generations->setRowWrapPolicy(QFormLayout::WrapLongRows);
        generations->addRow(QStringLiteral("Ma&ximum total number of generations:"), number("MaxTotalGens"));
        generations->addRow(QStringLiteral("Maximum &generations on a single page (in Outline and Descendant Tree):"),
                            number("MaxGenOnPage"));
        body().addLayout(generations);
        body().addSpacing(fontMetrics().lineSpacing());

        body().addWidget(yesNo("PersPages", QStringLiteral("Build a &personal page for each individual")));
        body().addWidget(yesNo("Pictures4ThisTreeOnly",
                               QStringLiteral("Sho&w pictures only if they show persons present in family trees")));
        QPushButton* items = MakeButton("cmdItems", QStringLiteral("&Items to Display..."));
        connect(items, &QPushButton::clicked, this, &GeneralPage::chooseItems);
        body().addWidget(items, 0, Qt::AlignLeft);
        body().addStretch();
    }

private:
    void chooseItems()
    {
        const WizardContext& wizard = context();
        if (EditItemsToInclude(wizard.file.connection(), wizard.environment, wizard.editing, this)) {
            wizard.changed();
        }
    }
};

} // namespace

WizardForm* MakeGeneralPage(const WizardContext& context)
{
    return new GeneralPage(context);
}

} // namespace stemwright
