// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/run/siterun.h"

/// What the pages of all tree displays but the collapsible one have in common: a head that hands the path of pages to
/// the top left frame, and an end. Only the end fails, as it writes the page. Stands on the run.
namespace stemwright
{

/// Writes the head of a page up to the opened body; `owner` is the entry that opens the page.
void WriteTreePageHead(PageFile& file, const SiteRun& run, const PublishedTree& tree, EntryNumber owner);

/// Writes what closes the body, and ends the page. Throws Error when the page cannot be written.
void EndTreePage(PageFile& file);

} // namespace stemwright
