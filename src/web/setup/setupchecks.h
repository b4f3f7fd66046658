// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "web/setup/setup.h"

#include <optional>

/// What a setup must satisfy before its pages are built. The wizard runs the checks of a page when it is left, the site
/// build runs all of them. Nothing here fails or talks; the caller shows the message. Stands on setup.h.
namespace stemwright
{

/// The pages of the Create Web Pages Wizard in their order.
enum class WizardPage { Introduction, Step1, Step2, FirstPage, General, DisplayOptions, Finished };

/// What is wrong with the values that this page of the wizard holds; no value when nothing is.
std::optional<Message> CheckWizardPage(const Setup& setup, WizardPage page);

/// The first thing that keeps the setup's pages from being built; no value when nothing does.
std::optional<Message> CheckSetup(const Setup& setup);

} // namespace stemwright
