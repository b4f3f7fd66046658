// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

/// The texts that managing, editing, checking and viewing web site setups shows, word for word.
namespace stemwright::setupmessages
{

// The setups manager.
Message NoSetupName();
Message DuplicateSetupName(const QString& name);
Message ConfirmSetupDelete(const QString& name);
InputRequest NewNameOfSetup();
/// A setup that could not be made, renamed, deleted or saved, with the reason as a whole sentence.
Message SetupFailed(const QString& reason);

// The setup being edited and its tree definitions.
Message LoseChanges();
Message NoNameIndex();
Message NoTreeHeadYet();
Message LastTreeDefinition();
Message DeletingFamilyTree();

// The items to include.
Message ItemAlreadyIncluded();

// The checks before pages are built.
Message EmptyHomePageName();
Message NoTreesToBuild();
Message TreeWithoutHead();
Message TooFewGenerationsOnPage();

// Choosing a setup whose pages are to be viewed.
Message NoSetupToView();
Message PagesNotYetCreated();

// The settings for uploading.
Message NoServerName();
Message NoUsername();
Message NoPassword();

} // namespace stemwright::setupmessages
