// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "store/file/familyfile.h"
#include "web/setup/setupmanager.h"

class QWidget;

namespace stemwright
{

/// Walks a setup through the Create Web Pages Wizard until its pages are built or the wizard is cancelled. For a setup
/// that stood there, all pages can be reached at once; for a new one, in their order. `picker` chooses the heads of
/// trees. Failures are told.
void ShowSiteWizard(FamilyFile& file, Environment& environment, const QString& setupName, WizardMode mode,
                    const PersonPicker& picker, QWidget* parent);

} // namespace stemwright
