// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "web/run/siterun.h"

namespace stemwright
{

/// Writes the fixed pages around the central frame: index.html, left.html, topleft.html, the scripts, and bottom.html,
/// topright.html and main.html with their placeholders filled; also the emblem image. Throws Error when a template is
/// missing or a file cannot be written.
void WriteCommonPages(const SiteRun& run, Connection& connection);

} // namespace stemwright
