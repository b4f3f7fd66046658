// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "web/run/siterun.h"

/// What a user is told about a site before its first page is written: what the tree lacks, and what of it the site
/// shows or leaves out against expectation. Nothing here fails. Stands on the run, with its trees.
namespace stemwright
{

/// Families that the trees need and of which there is no record, each once, in whatever trees it is missed.
void TellMissingFamilies(const SiteRun& run, Talk& talk);

/// Heads of trees that are protected, on a site that hides protected persons: a head is always shown.
void TellProtectedHeads(const SiteRun& run, Talk& talk);

/// Persons on such a site of whom the privacy test cannot tell whether they are living.
void TellPossiblyLiving(const SiteRun& run, Talk& talk);

/// Persons of whom facts are left out (WithholdFacts).
void TellFactsLeftOut(const std::vector<TreePosition>& persons, const SiteRun& run, Talk& talk);

} // namespace stemwright
