// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "cli/listing.h"
#include "index/contactediting.h"
#include "index/fullname.h"
#include "index/messages.h"
#include "index/namesearch.h"

namespace stemwright
{

namespace
{

/// Tells the user, and ends the command, when the tree of a family file has no individuals.
void RequireIndividuals(bool thereAre, Talk& talk)
{
    if (!thereAre) {
        talk.tell(indexmessages::NoListOfNames());
        Require(false);
    }
}

void AddPeople(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("people", "List the individuals of the tree by name");
    auto file = std::make_shared<std::string>();
    auto wanted = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The family file")->required();
    command->add_option("--find", *wanted,
                        "Only those whose name, as in \"Smith, John\", has this text in it; * stands for any text");
    command->callback([&line, file, wanted] {
        std::optional<NameIndex> index;
        Talk& talk = line.environment().talk;
        RequireIndividuals(OpenNameIndex(index, line.open(*file).connection()), talk);
        Listing listing({QStringLiteral("Person ID"), QStringLiteral("Name"), QStringLiteral("Birth Date"),
                         QStringLiteral("Death Date")});
        const NameCriteria criteria(CommandLine::textOf(*wanted));
        bool found = false;
        for (std::size_t position = 0; position < index->size(); ++position) {
            const NameRow row = index->rowAt(position);
            if (index->matches(row, criteria.anywhere) || index->matches(row, criteria.beginning)) {
                listing.row({index->id(row), index->fullName(row), index->birthDate(row), index->deathDate(row)});
                found = true;
            }
        }
        if (!found) {
            talk.tell(indexmessages::NoMatch());
            Require(false);
        }
        listing.print(line);
    });
}

/// Sets the field that an argument of the form "Email1=anna@example.org" names.
void SetField(ContactRecord& record, const std::string& assignment)
{
    const auto [name, value] = SplitAssignment(assignment, "FIELD=VALUE");
    const QString field = name.toLower();
    if (field == QStringLiteral("address") || field == QStringLiteral("phone")) {
        throw Error(indexmessages::ReadOnlyNote());
    }
    QString* const target = field == QStringLiteral("email1")    ? &record.email1
                            : field == QStringLiteral("email2")  ? &record.email2
                            : field == QStringLiteral("webpage") ? &record.webPage
                                                                 : nullptr;
    if (target == nullptr) {
        throw CLI::ValidationError("FIELD=VALUE", "\"" + assignment + "\" is not Email1=, Email2= or WebPage= a value");
    }
    *target = value;
}

void Show(CommandLine& line, const ContactEditing& contact)
{
    Listing listing({QStringLiteral("Field"), QStringLiteral("Value")});
    listing.row({QStringLiteral("Name"), contact.name()});
    listing.row({QStringLiteral("Email1"), contact.record().email1});
    listing.row({QStringLiteral("Email2"), contact.record().email2});
    listing.row({QStringLiteral("WebPage"), contact.record().webPage});
    listing.row({QStringLiteral("Address"), contact.address()});
    listing.row({QStringLiteral("Phone"), contact.phone()});
    listing.print(line);
}

void AddContact(CLI::App& app, CommandLine& line)
{
    struct Arguments {
        std::string file;
        int individualId = 0;
        std::vector<std::string> assignments;
    };

    auto* command = app.add_subcommand("contact", "Show or change how an individual can be reached");
    auto arguments = std::make_shared<Arguments>();
    command->add_option("FILE", arguments->file, "The family file")->required();
    command->add_option("ID", arguments->individualId, "The number of an individual, as listed by people")->required();
    command->add_option("FIELD=VALUE", arguments->assignments, "Values for Email1, Email2 and WebPage");
    command->callback([&line, arguments] {
        Connection& connection = line.open(arguments->file).connection();
        RequireIndividuals(HasIndividuals(connection), line.environment().talk);
        ContactEditing contact(connection, arguments->individualId);
        if (arguments->assignments.empty()) {
            Show(line, contact);
            return;
        }
        ContactRecord record = contact.record();
        for (const std::string& assignment : arguments->assignments) {
            SetField(record, assignment);
        }
        contact.setRecord(record);
        if (!contact.apply()) {
            throw Error(QStringLiteral("Nothing was stored, since at least one of Email1, Email2 and WebPage must have "
                                       "a value."));
        }
    });
}

} // namespace

void AddPeopleCommands(CLI::App& app, CommandLine& line)
{
    AddPeople(app, line);
    AddContact(app, line);
}

} // namespace stemwright
