// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"
#include "web/run/stepprogress.h"

namespace stemwright
{

/// Writes the pages of a Descendant Tree or of an Ancestor Tree: rectangles joined by lines, in the setup's two
/// colours, over as many pages as the walk has given it. Throws Error when a page cannot be written. Stands on the
/// walk.
void WriteChartPages(const SiteRun& run, const PublishedTree& tree, StepProgress& progress);

} // namespace stemwright
