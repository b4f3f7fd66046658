// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"
#include "web/run/stepprogress.h"

namespace stemwright
{

/// Writes the one page of a CollapsiTree: all descendants of the head, each individual's family in a block that the
/// visitor opens and closes. Throws Error when the template is missing or the page cannot be written. Stands on the
/// walk.
void WriteCollapsiTree(const SiteRun& run, const PublishedTree& tree, StepProgress& progress);

} // namespace stemwright
