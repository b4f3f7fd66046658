// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/commandline.h"
#include "gedcom/importcommand.h"

namespace stemwright
{

namespace
{

/// Imports and prints the report, also that of an import which a duplicate stopped.
void Import(CommandLine& line, const QString& path)
{
    ImportReport report;
    const bool ranToItsEnd = ImportGedcomFile(line.file(), path, line.environment(), report);
    if (report.outcome != ImportOutcome::Failed) {
        line.printReport(report);
    }
    Require(ranToItsEnd);
}

} // namespace

void AddGedcomCommands(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("import", "Import a GEDCOM file into a family file, replacing its tree");
    auto file = std::make_shared<std::string>();
    auto tree = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The family file")->required();
    command->add_option("TREE.ged", *tree, "The GEDCOM file")->required();
    command->callback([&line, file, tree] {
        line.open(*file);
        Import(line, CommandLine::pathOf(*tree));
    });
}

} // namespace stemwright
