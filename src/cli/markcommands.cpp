// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/pictureediting.h"
#include "base/error.h"
#include "cli/listing.h"
#include "cli/picturecommands.h"

namespace stemwright
{

namespace
{

void AddAdd(CLI::App& mark, CommandLine& line)
{
    struct Options {
        std::optional<int> person;
        std::string name;
        std::string at;
    };

    auto* command = mark.add_subcommand("add", "Name a person in a picture, and mark where she or he stands");
    auto arguments = AddPictureArguments(*command);
    auto options = std::make_shared<Options>();
    auto* who = command->add_option_group("WHO");
    who->add_option("--person", options->person, "The number of an individual of the tree");
    who->add_option("--name", options->name, "Any name");
    who->require_option(1);
    command->add_option("--at", options->at,
                        "Where the person stands, in pixels: X,Y,WIDTH,HEIGHT of a rectangle, X,Y of an arrow's tip");
    command->callback([&line, arguments, options] {
        PictureEditing editing(arguments->open(line), line.environment());
        editing.EditPicRec(arguments->pictureId);
        std::optional<MarkPlace> place;
        if (!options->at.empty()) {
            place = editing.typedPlace(CommandLine::textOf(options->at));
        }
        Require(options->person ? editing.addIndividual(*options->person, place)
                                : editing.addName(CommandLine::textOf(options->name), place));
        editing.apply();
    });
}

/// A number that a name without a place does not have.
QJsonValue NumberOf(const std::optional<int>& number)
{
    return number ? QJsonValue(*number) : QJsonValue();
}

void AddList(CLI::App& mark, CommandLine& line)
{
    auto* command = mark.add_subcommand("list", "List the persons in a picture");
    auto arguments = AddPictureArguments(*command);
    command->callback([&line, arguments] {
        Connection& connection = arguments->open(line);
        PersonMarks marks;
        marks.LoadPersonList(connection, LoadPictureRecord(connection, arguments->pictureId).id);
        Listing listing({QStringLiteral("N"), QStringLiteral("Name"), QStringLiteral("Person"), QStringLiteral("X"),
                         QStringLiteral("Y"), QStringLiteral("Width"), QStringLiteral("Height")});
        int number = 0;
        for (const PersonMark& person : marks.all()) {
            const auto& place = person.place;
            listing.row({++number, person.name, person.personId == 0 ? QJsonValue() : QJsonValue(person.personId),
                         place ? QJsonValue(place->x) : QJsonValue(), place ? QJsonValue(place->y) : QJsonValue(),
                         NumberOf(place ? place->width : std::nullopt),
                         NumberOf(place ? place->height : std::nullopt)});
        }
        listing.print(line);
    });
}

void AddRemove(CLI::App& mark, CommandLine& line)
{
    auto* command = mark.add_subcommand("remove", "Take a person out of a picture");
    auto arguments = AddPictureArguments(*command);
    auto number = std::make_shared<int>();
    command->add_option("N", *number, "The number of the mark, as listed")->required();
    command->callback([&line, arguments, number] {
        PictureEditing editing(arguments->open(line), line.environment());
        editing.EditPicRec(arguments->pictureId);
        if (*number < 1 || static_cast<std::size_t>(*number) > editing.marks().all().size()) {
            throw Error(QStringLiteral("The picture has no mark with the number %1.").arg(*number));
        }
        editing.pendingMarks().remove(static_cast<std::size_t>(*number - 1));
        editing.apply();
    });
}

} // namespace

void AddMarkCommands(CLI::App& app, CommandLine& line)
{
    AddGroup(app, "mark", "Mark the persons in a picture", [&line](CLI::App& mark) {
        AddAdd(mark, line);
        AddList(mark, line);
        AddRemove(mark, line);
    });
}

} // namespace stemwright
