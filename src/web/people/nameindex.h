// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"
#include "web/run/stepprogress.h"

namespace stemwright
{

/// Everybody who is on the site, in the order of the index of names.
std::vector<TreePosition> PersonsInIndexOrder(const SiteRun& run);

/// What stands after a person's name in the index, UTF-8: the years of birth and death, except for protected persons.
std::string TextAfterName(const SiteRun& run, TreePosition person);

/// Writes NameIndex.html and, when the site has them, the personal pages of all these persons, which a second thread
/// helps with. Throws Error when a template is missing or a page cannot be written. Stands on the run.
void WriteNameIndex(const SiteRun& run, const std::vector<TreePosition>& persons, StepProgress& progress);

} // namespace stemwright
