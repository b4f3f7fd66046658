// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"
#include "export/tableexport.h"

namespace stemwright
{

namespace
{

struct ExportArguments {
    std::string file;
    std::string target;
    std::optional<std::string> query;
    std::string delimiter = tabDelimiter.toStdString();
    std::string encoding = "system";

    TextEncoding textEncoding() const
    {
        const QString name = CommandLine::textOf(encoding).toLower();
        return name == u"utf-8"          ? TextEncoding::Utf8
               : name == u"windows-1252" ? TextEncoding::Windows1252
                                         : TextEncoding::System;
    }
};

/// The list of the named query, or, without a name, of the one in use.
PictureTable TableOf(Connection& connection, CommandLine& line, const std::optional<std::string>& query)
{
    if (query) {
        return PictureTable(connection, CommandLine::textOf(*query));
    }
    auto table = OpenPictureList(connection, line.environment(), {});
    Require(table.has_value());
    return *std::move(table);
}

} // namespace

void AddExportCommands(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("export", "Write a list of pictures to a text file for a spreadsheet");
    auto arguments = std::make_shared<ExportArguments>();
    command->add_option("FILE", arguments->file, "The family file")->required();
    command->add_option("OUT", arguments->target, "The text file to write")->required();
    command->add_option("--query", arguments->query, "The query that selects the pictures; else the one last run");
    command
        ->add_option("--delimiter", arguments->delimiter,
                     "What stands between the columns, usually one of " + OfferedDelimiters().join(u' ').toStdString())
        ->capture_default_str();
    command->add_option("--encoding", arguments->encoding, "The encoding of the file: system, utf-8 or windows-1252")
        ->check(CLI::IsMember({"system", "utf-8", "windows-1252"}, CLI::ignore_case));
    command->callback([&line, arguments] {
        Connection& connection = line.open(arguments->file).connection();
        const PictureTable table = TableOf(connection, line, arguments->query);
        const TableExport wanted{CommandLine::pathOf(arguments->target), CommandLine::textOf(arguments->delimiter),
                                 arguments->textEncoding()};
        Require(ExportTableAsText(table, wanted, connection.path(), line.environment().talk));
    });
}

} // namespace stemwright
