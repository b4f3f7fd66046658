// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/setupcommands.h"

#include "cli/listing.h"
#include "web/setupediting.h"
#include "web/setupmanager.h"
#include "web/setupviewing.h"

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

void AddNew(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("new", "Make a setup with default values");
    auto arguments = AddSetupArguments(*command);
    command->callback([&line, arguments] {
        SetupManager manager(arguments->open(line), line.environment());
        Require(manager.create(arguments->setupName()));
    });
}

/// A command that gives a setup or its copy another name.
void AddNaming(CLI::App& setup, CommandLine& line, const char* name, const char* description,
               bool (SetupManager::*procedure)(const QString& name, const QString& newName))
{
    auto* command = setup.add_subcommand(name, description);
    auto arguments = AddSetupArguments(*command);
    auto newName = std::make_shared<std::string>();
    command->add_option("NEWNAME", *newName, "The new name")->required();
    command->callback([&line, arguments, newName, procedure] {
        SetupManager manager(arguments->open(line), line.environment());
        Require((manager.*procedure)(arguments->setupName(), CommandLine::textOf(*newName)));
    });
}

void AddDelete(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("delete", "Delete a setup, after asking");
    auto arguments = AddSetupArguments(*command);
    command->callback([&line, arguments] {
        SetupManager manager(arguments->open(line), line.environment());
        Require(manager.remove(arguments->setupName()));
    });
}

void AddShow(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("show", "Show the values of a setup");
    auto arguments = AddSetupArguments(*command);
    command->callback([&line, arguments] {
        const SetupEditing editing(arguments->open(line), line.environment(), arguments->setupName());
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
        const QString text = CommandLine::textOf(assignment);
        const qsizetype equals = text.indexOf(u'=');
        if (equals <= 0) {
            throw CLI::ValidationError("COLUMN=VALUE", "\"" + assignment + "\" is not of the form COLUMN=VALUE");
        }
        editing.set(text.left(equals), text.mid(equals + 1));
        touched.push_back(SetupColumnNamed(text.left(equals)).page);
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
    auto arguments = AddSetupArguments(*command);
    auto assignments = std::make_shared<std::vector<std::string>>();
    command
        ->add_option("COLUMN=VALUE", *assignments,
                     "Columns as \"setup show\" lists them; EmblemPicture=PATH reads an image")
        ->required();
    command->callback([&line, arguments, assignments] {
        SetupEditing editing(arguments->open(line), line.environment(), arguments->setupName());
        SetColumns(editing, *assignments);
        Require(editing.save());
    });
}

void AddCheck(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("check", "Say what keeps the pages of a setup from being built");
    auto arguments = AddSetupArguments(*command);
    command->callback([&line, arguments] {
        const SetupEditing editing(arguments->open(line), line.environment(), arguments->setupName());
        if (const std::optional<Message> failure = CheckSetup(editing.setup())) {
            line.environment().talk.tell(*failure);
            Require(false);
        }
    });
}

void AddView(CLI::App& setup, CommandLine& line)
{
    auto* command = setup.add_subcommand("view", "Print where the first of a setup's finished pages is");
    auto arguments = AddSetupArguments(*command);
    command->callback([&line, arguments] {
        const std::optional<QString> page =
            FindPagesToView(arguments->open(line), arguments->setupName(), line.environment().talk);
        Require(page.has_value());
        line.out() << *page << Qt::endl;
    });
}

} // namespace

std::shared_ptr<SetupArguments> AddSetupArguments(CLI::App& command)
{
    auto arguments = std::make_shared<SetupArguments>();
    command.add_option("FILE", arguments->file, "The family file")->required();
    command.add_option("NAME", arguments->name, "The name of the setup")->required();
    return arguments;
}

void AddSetupCommands(CLI::App& app, CommandLine& line)
{
    auto* setup = app.add_subcommand("setup", "Manage web site setups");
    setup->require_subcommand(1);
    AddList(*setup, line);
    AddNew(*setup, line);
    AddNaming(*setup, line, "clone", "Copy a setup under a new name", &SetupManager::clone);
    AddNaming(*setup, line, "rename", "Give a setup a new name", &SetupManager::rename);
    AddDelete(*setup, line);
    AddShow(*setup, line);
    AddSet(*setup, line);
    AddCheck(*setup, line);
    AddView(*setup, line);
    AddSetupTreeCommands(*setup, line);
    AddSetupItemCommands(*setup, line);
}

} // namespace stemwright
