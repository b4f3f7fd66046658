// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

namespace stemwright
{

/// Leaves out the facts of the persons of the site that name a hidden person: the dates, places and other texts of the
/// setup's items, those of families and of children in them included, each text for itself. `texts` are the run's own.
/// Returns whose texts were left out, in the order of the tree. Does nothing on a site that hides nobody. Nothing here
/// fails. Stands on the run, with its trees and hidden names.
std::vector<TreePosition> WithholdFacts(SiteTexts& texts, const SiteRun& run);

} // namespace stemwright
