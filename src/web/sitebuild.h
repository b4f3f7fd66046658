// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"
#include "web/setup/setupediting.h"

/// Building a web site from a setup, from the checks to the last page. Stands on everything of this folder.
namespace stemwright
{

struct SiteRequest {
    QString setupName;
    /// The output folder of this run; empty for the setup's own.
    QString outputFolder;
};

/// Builds the site, asking what has to be asked, and returns the full path of its index.html. No value when the user
/// stopped the build or was told why it failed; the family file is then as it was.
std::optional<QString> BuildWebPages(FamilyFile& file, const SiteRequest& request, Environment& environment);

/// The same for a setup that is being edited: saves it first. The editing can go on afterwards.
std::optional<QString> BuildWebPages(FamilyFile& file, SetupEditing& editing, Environment& environment);

/// Tells where the finished site is, unless the user switched that off: for whoever has no window to say so.
void TellWebPagesCreated(const QString& index, Environment& environment);

/// Whether the user wants to hear of the end of a build at all.
bool WantsConfirmation(const Settings& settings);

} // namespace stemwright
