// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/run/siterun.h"

namespace stemwright
{

/// Writes the part of a personal page that tells of the person's families: partner, status, events and children of
/// each. Nothing here fails. Stands on the run.
void WritePartnerships(const SiteRun& run, PageFile& file, TreePosition person);

} // namespace stemwright
