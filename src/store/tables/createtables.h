// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/engine/connection.h"

/// One creation procedure a table of the family file: the table with its columns and indexes, then its default rows
/// where it has any. Creating a table that exists fails as the engine fails; the caller catches. Stands on the schema.
namespace stemwright
{

void CreateGenInfoTable(Connection& connection);
void CreateIndiTable(Connection& connection);
void CreateFamTable(Connection& connection);
void CreateAlbumTOCTable(Connection& connection);
/// With the "Initial" query.
void CreatePicListQueriesTable(Connection& connection, const Clock& clock);
/// Makes the "Initial" query the user's default one, once the file that it was created in is in its place.
void ChooseInitialQuery(Settings& settings);
void CreateSchemaIndiTable(Connection& connection);
void CreateSchemaFamTable(Connection& connection);
void CreateFam2ChildTable(Connection& connection);
void CreateSpouse2FamTable(Connection& connection);
void CreatePic2PersonTable(Connection& connection);
void CreateWebAddrTable(Connection& connection);
void CreateWebSiteInfoTable(Connection& connection, const ApplicationFolder& application);
void CreateSelectedItemsTable(Connection& connection);
void CreateTreeHeadsTable(Connection& connection);
void CreateIndi2PageTable(Connection& connection);
void CreateUniqueIdsTable(Connection& connection);

void CreatePreV2IndiTable(Connection& connection);
void CreatePreV2Pic2PersonTable(Connection& connection);

/// All tables of a new family file with their default rows, in the settled order.
void CreateFamilyFileTables(Connection& connection, const Environment& environment);

} // namespace stemwright
