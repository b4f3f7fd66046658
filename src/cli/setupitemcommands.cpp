// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/listing.h"
#include "cli/setupcommands.h"
#include "web/setup/itemcatalogue.h"
#include "web/setup/itemselection.h"

namespace stemwright
{

namespace
{

/// The options of an item that were given; the others stay as they are.
struct GivenOptions {
    std::optional<bool> inTree;
    std::optional<bool> isPrivate;
    std::optional<std::string> beforeItem;
    std::optional<std::string> beforePlace;
    std::optional<std::string> afterItem;
};

/// Two flags that exclude each other and set or clear a value.
void AddSwitch(CLI::App& command, std::optional<bool>& value, const std::string& on, const std::string& off,
               const std::string& description)
{
    auto* set = command.add_flag_callback(
        on, [&value] { value = true; }, description);
    command
        .add_flag_callback(
            off, [&value] { value = false; }, "The opposite of " + on)
        ->excludes(set);
}

std::shared_ptr<GivenOptions> AddItemOptions(CLI::App& command)
{
    auto given = std::make_shared<GivenOptions>();
    AddSwitch(command, given->inTree, "--in-tree", "--no-tree",
              "Show the item in the family tree too, not only on personal pages");
    AddSwitch(command, given->isPrivate, "--private", "--public", "Hide the item for privacy-protected persons");
    command.add_option("--before", given->beforeItem, "Text or marks before the item");
    command.add_option("--before-place", given->beforePlace, "Text or marks before the place of an event");
    command.add_option("--after", given->afterItem, "Text or marks after the item");
    return given;
}

std::shared_ptr<int> AddRow(CLI::App& command)
{
    auto row = std::make_shared<int>(0);
    command.add_option("N", *row, "The place of the item, as listed")->required();
    return row;
}

void TakeText(QString& text, const std::optional<std::string>& given)
{
    if (given) {
        text = CommandLine::textOf(*given);
    }
}

void ApplyOptions(ItemSelection& selection, int row, const GivenOptions& given)
{
    ItemOptions options = ItemOptions::of(selection.item(row));
    options.inTree = given.inTree.value_or(options.inTree);
    options.isPrivate = given.isPrivate.value_or(options.isPrivate);
    TakeText(options.beforeItem, given.beforeItem);
    TakeText(options.beforePlace, given.beforePlace);
    TakeText(options.afterItem, given.afterItem);
    selection.setOptions(row, options);
}

/// What the commands below "items" are made from: the command line, and the setup that they are about.
class ItemCommands
{
public:
    ItemCommands(CLI::App& items, CommandLine& line, std::shared_ptr<NamedRowArguments> arguments)
        : m_items(items), m_line(line), m_arguments(std::move(arguments))
    {
    }

    void addList() const
    {
        auto* command = m_items.add_subcommand("list", "List the items that the setup includes");
        command->callback([self = *this] {
            Listing listing({QStringLiteral("N"), QStringLiteral("Item"), QStringLiteral("InTree"),
                             QStringLiteral("Before"), QStringLiteral("BeforePlace"), QStringLiteral("After"),
                             QStringLiteral("Private")});
            int row = 0;
            const ItemSelection selection = self.open();
            for (const SelectedItem& item : selection.items()) {
                listing.row(
                    {++row, item.name, item.inTree, item.beforeItem, item.beforePlace, item.afterItem, item.isPrivate});
            }
            listing.print(self.m_line);
        });
    }

    void addCatalogue() const
    {
        auto* command = m_items.add_subcommand("catalogue", "List the items that can be added");
        command->callback([self = *this] {
            Listing listing({QStringLiteral("Item"), QStringLiteral("Source"), QStringLiteral("Kind")});
            self.open();
            for (const SelectedItem& item : LoadItemCatalogue(self.m_line.file().connection())) {
                listing.row({item.name, QString(item.table + u'.' + item.source), item.kind});
            }
            listing.print(self.m_line);
        });
    }

    void addAdd() const
    {
        auto* command = m_items.add_subcommand("add", "Append an item of the catalogue");
        auto item = std::make_shared<std::string>();
        command->add_option("ITEM", *item, "Its name, or its source as the catalogue lists it")->required();
        auto given = AddItemOptions(*command);
        command->callback([self = *this, item, given] {
            ItemSelection selection = self.open();
            Require(selection.add(CatalogueItemNamed(self.m_line.file().connection(), CommandLine::textOf(*item))));
            ApplyOptions(selection, static_cast<int>(selection.items().size()) - 1, *given);
            selection.save();
        });
    }

    void addEdit() const
    {
        auto* command = m_items.add_subcommand("edit", "Change how an item is shown");
        auto row = AddRow(*command);
        auto given = AddItemOptions(*command);
        command->callback([self = *this, row, given] {
            self.change([&](ItemSelection& selection) { ApplyOptions(selection, *row - 1, *given); });
        });
    }

    /// A command that does one thing to one row.
    template <typename Change>
    void addRowCommand(const char* name, const char* description, Change doIt) const
    {
        auto* command = m_items.add_subcommand(name, description);
        auto row = AddRow(*command);
        command->callback(
            [self = *this, row, doIt] { self.change([&](ItemSelection& selection) { (selection.*doIt)(*row - 1); }); });
    }

private:
    ItemSelection open() const
    {
        return {m_arguments->open(m_line), m_line.environment().talk, m_arguments->rowName()};
    }

    template <typename Change>
    void change(Change doIt) const
    {
        ItemSelection selection = open();
        doIt(selection);
        selection.save();
    }

    CLI::App& m_items;
    CommandLine& m_line;
    std::shared_ptr<NamedRowArguments> m_arguments;
};

} // namespace

void AddSetupItemCommands(CLI::App& setup, CommandLine& line)
{
    auto* items = setup.add_subcommand("items", "List and change the items that a setup includes");
    items->require_subcommand(1);
    const ItemCommands commands(*items, line, AddNamedRowArguments(*items, "setup"));
    commands.addList();
    commands.addCatalogue();
    commands.addAdd();
    commands.addEdit();
    commands.addRowCommand("remove", "Remove an item", &ItemSelection::remove);
    commands.addRowCommand("up", "Move an item up", &ItemSelection::moveUp);
    commands.addRowCommand("down", "Move an item down", &ItemSelection::moveDown);
}

} // namespace stemwright
