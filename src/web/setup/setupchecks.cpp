// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupchecks.h"

#include "web/setup/setupmessages.h"

namespace stemwright
{

namespace
{

/// With one generation a page, no page could hold a child beside its parent.
constexpr int fewestGenerationsOnPage = 2;

std::optional<Message> CheckTrees(const std::vector<TreeDefinition>& trees)
{
    if (trees.empty()) {
        return setupmessages::NoTreesToBuild();
    }
    const auto hasNoHead = [](const TreeDefinition& tree) { return tree.headName.isEmpty(); };
    if (std::any_of(trees.begin(), trees.end(), hasNoHead)) {
        return setupmessages::TreeWithoutHead();
    }
    return std::nullopt;
}

} // namespace

std::optional<Message> CheckWizardPage(const Setup& setup, WizardPage page)
{
    if (page == WizardPage::Step1 && setup.homePageName.isEmpty()) {
        return setupmessages::EmptyHomePageName();
    }
    if (page == WizardPage::DisplayOptions) {
        return CheckTrees(setup.trees);
    }
    if (page == WizardPage::General && setup.maxGenerationsOnPage < fewestGenerationsOnPage) {
        return setupmessages::TooFewGenerationsOnPage();
    }
    return std::nullopt;
}

std::optional<Message> CheckSetup(const Setup& setup)
{
    for (const WizardPage page : {WizardPage::Step1, WizardPage::DisplayOptions, WizardPage::General}) {
        if (std::optional<Message> failure = CheckWizardPage(setup, page)) {
            return failure;
        }
    }
    return std::nullopt;
}

} // namespace stemwright
