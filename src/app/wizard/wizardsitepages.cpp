// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/controls.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

class IntroductionPage : public WizardForm
{
public:
    explicit IntroductionPage(const WizardContext& context) : WizardForm(context, WizardPage::Introduction)
    {
        addText("lblIntroduction", wizardtexts::Introduction());
        body().addStretch();
    }
};

/// Whether the site stands alone, and where its parent's home page is if it does not.
class SiteKindPage : public WizardForm
{
public:
    explicit SiteKindPage(const WizardContext& context) : WizardForm(context, WizardPage::Step1)
    {
        addText("lblSiteKind", wizardtexts::SiteKind());
        for (QRadioButton* option : {optStandalone, optSubsite}) {
            body().addWidget(option);
            connect(option, &QRadioButton::clicked, this, [this] {
                change([this] {
                    this->context().editing.set(QStringLiteral("Standalone"),
                                                QString::number(optStandalone->isChecked() ? 1 : 0));
                });
            });
        }
        QLineEdit* home =
            addLine(addCaption(QStringLiteral("The name of the &parent site's home page:")), "HomePageName");
        onRefresh([this, home] {
            const bool standalone = stored("Standalone") == QStringLiteral("1");
            (standalone ? optStandalone : optSubsite)->setChecked(true);
            // An empty name keeps the page from being left, whichever kind is chosen.
            home->setEnabled(!standalone || home->text().isEmpty());
        });
        body().addStretch();
    }

private:
    QRadioButton* optStandalone = MakeOption("optStandalone", QStringLiteral("St&andalone site"));
    QRadioButton* optSubsite = MakeOption("optSubsite", QStringLiteral("S&ubsite"));
};

} // namespace

WizardForm* MakeIntroductionPage(const WizardContext& context)
{
    return new IntroductionPage(context);
}

WizardForm* MakeSiteKindPage(const WizardContext& context)
{
    return new SiteKindPage(context);
}

} // namespace stemwright
