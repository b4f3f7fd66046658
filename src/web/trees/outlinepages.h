// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"
#include "web/run/stepprogress.h"

namespace stemwright
{

/// Writes the pages of an Outline: an indented list of the head's descendants, a line for each individual and each
/// spouse, over as many pages as the walk has given it. Throws Error when a page cannot be written. Stands on the walk.
void WriteOutlinePages(const SiteRun& run, const PublishedTree& tree, StepProgress& progress);

} // namespace stemwright
