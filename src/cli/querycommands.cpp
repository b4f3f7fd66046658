// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/listing.h"
#include "cli/namedrowcommands.h"
#include "cli/picturelisting.h"
#include "queries/messages.h"
#include "queries/queryediting.h"
#include "queries/querymanager.h"

namespace stemwright
{

namespace
{

void AddList(CLI::App& query, CommandLine& line)
{
    auto* command = query.add_subcommand("list", "List the queries of a family file");
    auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The family file")->required();
    command->callback([&line, file] {
        QueryManager manager(line.open(*file).connection(), line.environment());
        const QString inUse = line.environment().settings.value(setting::picListQueries, setting::defaultPicListQuery);
        Listing listing({QStringLiteral("Name"), QStringLiteral("In use")});
        for (const QString& name : manager.names()) {
            listing.row({name, name == inUse});
        }
        listing.print(line);
    });
}

/// What a value stands for, where that is not plain.
QString Meaning(const QueryEditing& editing, const QString& column)
{
    if (column == u"IndiId") {
        return editing.personName();
    }
    return column == u"PicDateFrom" || column == u"PicDateTo" ? editing.dateText(column).trimmed() : QString();
}

void AddShow(CLI::App& query, CommandLine& line)
{
    auto* command = query.add_subcommand("show", "Show the values of a query");
    auto arguments = AddNamedRowArguments(*command, "query");
    command->callback([&line, arguments] {
        const QueryEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        Listing listing({QStringLiteral("Column"), QStringLiteral("Value"), QStringLiteral("Meaning")});
        for (const QString& column : QueryEditing::columns()) {
            listing.row({column, editing.valueText(column), Meaning(editing, column)});
        }
        listing.print(line);
    });
}

void AddSet(CLI::App& query, CommandLine& line)
{
    auto* command = query.add_subcommand("set", "Change values of a query, all or none");
    auto arguments = AddNamedRowArguments(*command, "query");
    auto assignments = std::make_shared<std::vector<std::string>>();
    command->add_option("COLUMN=VALUE", *assignments, "Columns as \"query show\" lists them")->required();
    command->callback([&line, arguments, assignments] {
        QueryEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        for (const std::string& assignment : *assignments) {
            const auto [column, value] = SplitAssignment(assignment);
            Require(editing.set(column, value));
        }
        Require(editing.save());
    });
}

void AddSql(CLI::App& query, CommandLine& line)
{
    auto* command = query.add_subcommand("sql", "Print the statement of a query");
    auto arguments = AddNamedRowArguments(*command, "query");
    command->callback([&line, arguments] {
        line.out() << BuildPicListSQL(arguments->open(line), arguments->rowName()).text << Qt::endl;
    });
}

void AddRun(CLI::App& query, CommandLine& line)
{
    auto* command = query.add_subcommand("run", "List the pictures that a query selects, and keep to this query");
    auto arguments = AddNamedRowArguments(*command, "query");
    command->callback([&line, arguments] {
        Connection& connection = arguments->open(line);
        QueryManager manager(connection, line.environment());
        Require(manager.run(arguments->rowName()));
        const auto table = OpenPictureList(connection, line.environment(), manager.selected());
        Require(table.has_value());
        PrintPictures(*table, line);
    });
}

} // namespace

void AddQueryCommands(CLI::App& app, CommandLine& line)
{
    auto* query = AddGroup(app, "query", "Manage picture list queries", [&line](CLI::App& commands) {
        AddList(commands, line);
        AddNamedRowCommands(commands, line, "query", Make<QueryManager>);
        AddShow(commands, line);
        AddSet(commands, line);
        AddSql(commands, line);
        AddRun(commands, line);
    });
    query->footer(querymessages::QueryListExplanation().toStdString());
}

} // namespace stemwright
