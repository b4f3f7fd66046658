// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/html/pagefile.h"
#include "web/run/siterun.h"

namespace stemwright
{

/// Writes the part of a personal page that tells how to reach the person; nothing for who may not be reached. Nothing
/// here fails. Stands on the run.
void WriteContactInfo(const SiteRun& run, PageFile& file, TreePosition person);

} // namespace stemwright
