// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/wizard/wizardform.h"

/// The pages of the Create Web Pages Wizard, each in a file of its own. Nothing here fails.
namespace stemwright
{

WizardForm* MakeIntroductionPage(const WizardContext& context);
WizardForm* MakeSiteKindPage(const WizardContext& context);
WizardForm* MakeFolderPage(const WizardContext& context);
WizardForm* MakeFirstPagePage(const WizardContext& context);
WizardForm* MakeGeneralPage(const WizardContext& context);
WizardForm* MakeDisplayPage(const WizardContext& context);

/// The last page; its `chkSaveDefault` sets `isModel`.
WizardForm* MakeFinishedPage(const WizardContext& context);

} // namespace stemwright
