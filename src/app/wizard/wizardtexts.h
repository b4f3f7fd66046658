// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "web/setup/setup.h"
#include "web/setup/setupchecks.h"

/// The texts of the Create Web Pages Wizard, word for word.
namespace stemwright::wizardtexts
{

QString Caption(const QString& setupName);
QString PageName(WizardPage page);

QString Introduction();
QString SiteKind();
QString FolderHint();
QString TitleExample();
QString StoryExample();
QString PrivacyRule();
QString TreesHint();
QString NoEmblem();
QString EmblemCannotBeShown();
QString SampleOfColours();
QString Finished();
/// What is going to be built: the folder and the number of trees; then who is left out of it, or not.
QString Summary(const Setup& setup);
QString LivingAreHidden(const Setup& setup);
QString LivingAreShown();
QString PressFinish();

FileRequest ChooseFolder(const QString& folder);
FileRequest ChooseEmblem();

} // namespace stemwright::wizardtexts
