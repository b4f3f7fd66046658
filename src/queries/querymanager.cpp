// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/querymanager.h"

#include "queries/messages.h"
#include "queries/picturequery.h"
#include "store/engine/engineerror.h"
#include "store/tables/defaultrows.h"

namespace stemwright
{

QueryManager::QueryManager(Connection& connection, Environment& environment)
    : NamedRowManager(connection, environment, QueryKind(),
                      {querymessages::NoQueryName, querymessages::DuplicateQueryName, querymessages::ConfirmQueryDelete,
                       querymessages::NewNameOfQuery, querymessages::QueryFailed})
{
    const QString inUse = environment.settings.value(setting::picListQueries, setting::defaultPicListQuery);
    if (FindNamedRow(connection, QueryKind(), inUse)) {
        select(inUse);
    }
}

bool QueryManager::run(const QString& name)
{
    try {
        select(name);
        environment().settings.setValue(setting::picListQueries, setting::defaultPicListQuery, selected());
        return true;
    } catch (const std::exception& exception) {
        environment().talk.tell(querymessages::QueryFailed(ReasonText(exception)));
        return false;
    }
}

void QueryManager::writeNew(const QString& name)
{
    WriteDefaultQuery(connection(), name, environment().clock);
}

void QueryManager::writeClone(const NamedRow& source, const QString& name)
{
    CloneRow(connection(), QueryKind().table, source.row, {{QueryKind().nameColumn, name}});
}

} // namespace stemwright
