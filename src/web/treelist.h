// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "web/run/siterun.h"

namespace stemwright
{

/// Writes TreeList.html: one row a tree. Throws Error when the template is missing or the page cannot be written.
void WriteTreeList(const SiteRun& run);

} // namespace stemwright
