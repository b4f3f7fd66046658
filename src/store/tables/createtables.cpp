// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/tables/createtables.h"

#include "store/engine/schema.h"
#include "store/engine/tablesql.h"
#include "store/tables/defaultrows.h"

namespace stemwright
{

void CreateGenInfoTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"GenInfo"));
    WriteFileVersion(connection);
}

void CreateIndiTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"Indi"));
}

void CreateFamTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"Fam"));
}

void CreateAlbumTOCTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"AlbumTOC"));
}

void CreatePicListQueriesTable(Connection& connection, const Clock& clock)
{
    CreateTable(connection, TableNamed(u"PicListQueries"));
    WriteDefaultQuery(connection, initialQueryName, clock);
}

void ChooseInitialQuery(Settings& settings)
{
    settings.setValue(setting::picListQueries, setting::defaultPicListQuery, initialQueryName);
}

void CreateSchemaIndiTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"SchemaIndi"));
}

void CreateSchemaFamTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"SchemaFam"));
}

void CreateFam2ChildTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"Fam2Child"));
}

void CreateSpouse2FamTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"Spouse2Fam"));
}

void CreatePic2PersonTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"Pic2Person"));
}

void CreateWebAddrTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"WebAddr"));
}

void CreateWebSiteInfoTable(Connection& connection, const ApplicationFolder& application)
{
    CreateTable(connection, TableNamed(u"WebSiteInfo"));
    WriteDefaultSetup(connection, defaultSetupName, application);
}

void CreateSelectedItemsTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"SelectedItems"));
    WriteDefaultSelectedItems(connection, defaultSetupName);
}

void CreateTreeHeadsTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"TreeHeads"));
    WriteDefaultTreeHead(connection, defaultSetupName);
}

void CreateIndi2PageTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"Indi2Page"));
}

void CreateUniqueIdsTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"UniqueIds"));
}

void CreatePreV2IndiTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"PreV2Indi"));
}

void CreatePreV2Pic2PersonTable(Connection& connection)
{
    CreateTable(connection, TableNamed(u"PreV2Pic2Person"));
}

void CreateFamilyFileTables(Connection& connection, const Environment& environment)
{
    CreateGenInfoTable(connection);
    CreateIndiTable(connection);
    CreateFamTable(connection);
    CreateAlbumTOCTable(connection);
    CreatePicListQueriesTable(connection, environment.clock);
    CreateSchemaIndiTable(connection);
    CreateSchemaFamTable(connection);
    CreateFam2ChildTable(connection);
    CreateSpouse2FamTable(connection);
    CreatePic2PersonTable(connection);
    CreateWebAddrTable(connection);
    CreateWebSiteInfoTable(connection, environment.application);
    CreateSelectedItemsTable(connection);
    CreateTreeHeadsTable(connection);
    CreateIndi2PageTable(connection);
    CreateUniqueIdsTable(connection);
}

} // namespace stemwright
