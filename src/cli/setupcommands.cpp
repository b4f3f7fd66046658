// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/setupcommands.h"

#include "cli/listing.h"
#include "web/setup/setupediting.h"
#include "web/setup/setupmanager.h"
#include "web/setup/setupmodel.h"
#include "web/setup/setupviewing.h"

namespace stemwright
{

namespace
{

void AddList(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("list", "List the setups of a family file");
    auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The family file")->required();
    command->callback([&line, file] {
        Connection& connection = line.open(*file).connection();
        Listing listing({QStringLiteral("Name"), QStringLiteral("Title"), QStringLiteral("Folder")});
        for (const QString& name : SetupManager(connection, line.environment()).names()) {
            if (const std::optional<Setup> found = LoadSetup(connection, name)) {
                listing.row({name, found->siteTitle, found->folder});
            }
        }
        listing.print(line);
    });
}

void AddShow(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("show", "Show the values of a setup");
    auto arguments = AddNamedRowArguments(*command, "setup");
    command->callback([&line, arguments] {
        const SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        Listing listing({QStringLiteral("Column"), QStringLiteral("Value")});
        for (const SetupColumn& column : SetupColumns()) {
            listing.row({column.name, editing.settingText(column)});
        }
        listing.print(line);
    });
}

/// Sets the columns, then checks the pages of the wizard on which they stand.
void SetColumns(SetupEditing& editing, const std::vector<std::string>& assignments)
{
    std::vector<WizardPage> touched;
    for (const std::string& assignment : assignments) {
        const auto [column, value] = SplitAssignment(assignment);
        editing.set(column, value);
        touched.push_back(SetupColumnNamed(column).page);
    }
    for (const WizardPage page : {WizardPage::Step1, WizardPage::General}) {
        if (std::find(touched.begin(), touched.end(), page) != touched.end()) {
            Require(editing.leavePage(page));
        }
    }
}

void AddSet(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("set", "Change values of a setup, all or none");
    auto arguments = AddNamedRowArguments(*command, "setup");
    auto assignments = std::make_shared<std::vector<std::string>>();
    command
        ->add_option("COLUMN=VALUE", *assignments,
                     "Columns as \"setup show\" lists them; EmblemPicture=PATH reads an image")
        ->required();
    command->callback([&line, arguments, assignments] {
        SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        SetColumns(editing, *assignments);
        Require(editing.save());
    });
}

void AddCheck(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("check", "Say what keeps the pages of a setup from being built");
    auto arguments = AddNamedRowArguments(*command, "setup");
    command->callback([&line, arguments] {
        const SetupEditing editing(arguments->open(line), line.environment(), arguments->rowName());
        if (const std::optional<Message> failure = CheckSetup(editing.setup())) {
            line.environment().talk.tell(*failure);
            Require(false);
        }
    });
}

void AddDefault(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("default", "Save the values of a setup as the default of new setups");
    auto arguments = AddNamedRowArguments(*command, "setup");
    command->callback(
        [&line, arguments] { Require(SaveAsModel(arguments->open(line), arguments->rowName(), line.environment())); });
}

void AddView(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("view", "Print where the first of a setup's finished pages is");
    auto arguments = AddNamedRowArguments(*command, "setup");
    command->callback([&line, arguments] {
        const std::optional<QString> page =
            FindPagesToView(arguments->open(line), arguments->rowName(), line.environment().talk);
        Require(page.has_value());
        line.out() << *page << Qt::endl;
    });
}

} // namespace

void AddSetupCommands(CLI::App& app, CommandLine& line)
{
    AddGroup(app, "setup", "Manage web site setups", [&line](CLI::App& setup) {
        AddList(setup, line);
        AddNamedRowCommands(setup, line, "setup", Make<SetupManager>);
        AddShow(setup, line);
        AddSet(setup, line);
        AddCheck(setup, line);
        AddDefault(setup, line);
        AddView(setup, line);
        AddSetupTreeCommands(setup, line);
        AddSetupItemCommands(setup, line);
    });
}

} // namespace stemwright
