// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/notice.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

class FinishedPage : public WizardForm
{
public:
    explicit FinishedPage(const WizardContext& context) : WizardForm(context, WizardPage::Finished)
    {
        addText("lblFinished", wizardtexts::Finished());
        QLabel* summary = addText("lblSummary", {});
        QLabel* hidden = addText("lblLivingHidden", {});
        auto* shown = new Notice(QStringLiteral("lblLivingShown"));
        body().addWidget(shown);
        addText("lblPressFinish", wizardtexts::PressFinish());
        onRefresh([this, summary, hidden, shown] {
            const Setup setup = this->context().editing.setup();
            summary->setText(wizardtexts::Summary(setup));
            hidden->setText(wizardtexts::LivingAreHidden(setup));
            hidden->setVisible(setup.hideLiving);
            shown->setText(setup.hideLiving ? QString() : wizardtexts::LivingAreShown());
        });
        auto* chkSaveDefault = new QCheckBox(QStringLiteral(" Save c&urrent settings as default"));
        chkSaveDefault->setObjectName(QStringLiteral("chkSaveDefault"));
        chkSaveDefault->setToolTip(QStringLiteral("New setups will begin with the settings of this one"));
        connect(chkSaveDefault, &QCheckBox::toggled, this, [this](bool checked) { this->context().isModel = checked; });
        body().addStretch();
        body().addWidget(chkSaveDefault);
    }
};

} // namespace

WizardForm* MakeFinishedPage(const WizardContext& context)
{
    return new FinishedPage(context);
}

} // namespace stemwright
