// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"
#include "web/run/siterun.h"

namespace stemwright
{

/// Makes the tables Indi2Page and UniqueIds anew, empty and without indexes that would slow down their filling. Must
/// run inside a transaction, while nothing else reads the family file: the engine drops no table under a reader.
void MakeWorkTables(Connection& connection);

/// Fills the new tables with all entries of the run's trees: who is on which page, and who is in a tree more than once.
/// Must run inside the same transaction. Others may read the family file meanwhile, also in another thread.
void FillWorkTables(const SiteRun& run, Connection& connection);

} // namespace stemwright
