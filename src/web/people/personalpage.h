// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/run/siterun.h"

/// Personal pages: everything that the site says about one person, with links to the personal pages of relatives.
/// Stands on the run.
namespace stemwright
{

/// The lines with which every personal page begins. Throws Error when the template is missing.
std::string PersonalPageTop(const ApplicationFolder& application);

/// Writes the personal page of a person who is on the site. Throws Error when it cannot be written.
void WritePersonalPage(const SiteRun& run, const std::string& top, PageFile& file, TreePosition person);

} // namespace stemwright
