// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "web/run/siterun.h"

namespace stemwright
{

/// Makes the tables Indi2Page and UniqueIds anew and fills them with all entries of the run's trees: who is on which
/// page, and who is in a tree more than once. Must run inside a transaction; fails as the engine fails.
void WriteWorkTables(const SiteRun& run, Connection& connection);

} // namespace stemwright
