// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "cli/picturecommands.h"

#include "album/messages.h"
#include "album/modblob.h"
#include "album/pictureediting.h"
#include "album/picturelist.h"
#include "base/error.h"
#include "base/files.h"
#include "cli/listing.h"
#include "cli/picturelisting.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// What can be given of a record; what is not given stays as it is.
struct RecordOptions {
    std::optional<std::string> image;
    std::optional<std::string> title;
    std::optional<std::string> date;
    std::optional<std::string> place;
    std::optional<std::string> description;
    std::string names;
    std::string marks;
};

void AddRecordOptions(CLI::App& command, RecordOptions& options)
{
    command.add_option("--title", options.title, "What the picture shows");
    command.add_option("--date", options.date,
                       "When it was taken, for example \"12 Mar 1950\", \"Abt. 1950\"; \"\" for no date");
    command.add_option("--place", options.place, "Where it was taken");
    command.add_option("--description", options.description, "More about it");
    command.add_option("--names", options.names, "Where the names stand on the picture's page: left or above")
        ->check(CLI::IsMember({"left", "above"}));
    command.add_option("--marks", options.marks, "What marks the persons: rectangle or arrow")
        ->check(CLI::IsMember({"rectangle", "arrow"}));
}

/// Puts the options into the record and writes it. Returns the picture's number.
int Apply(PictureEditing& editing, const RecordOptions& options, Talk& talk)
{
    if (options.image && options.image->empty()) {
        editing.removePicture();
    } else if (options.image) {
        Require(editing.choosePicture(CommandLine::pathOf(*options.image)));
    }
    if (options.title) {
        editing.setTitle(CommandLine::textOf(*options.title));
    }
    if (options.date) {
        const std::optional<PickedDate> date = PickTypedDate(CommandLine::textOf(*options.date), talk);
        Require(date.has_value());
        editing.setDate(*date);
    }
    if (options.place) {
        editing.setPlace(CommandLine::textOf(*options.place));
    }
    if (options.description) {
        editing.setDescription(CommandLine::textOf(*options.description));
    }
    if (!options.names.empty()) {
        editing.setNames(options.names == "left" ? NamePlacement::Left : NamePlacement::Above);
    }
    if (!options.marks.empty()) {
        Require(editing.RectangleOnOff(options.marks == "arrow" ? PointerTool::Arrow : PointerTool::Rectangle));
    }
    return editing.apply();
}

void AddAdd(CLI::App& picture, CommandLine& line)
{
    auto* command = picture.add_subcommand("add", "Add a picture and print its number");
    auto file = std::make_shared<std::string>();
    auto options = std::make_shared<RecordOptions>();
    command->add_option("FILE", *file, "The family file")->required();
    command->add_option("IMAGE", options->image, "The picture: a GIF or JPEG file of at most 200 KB")->required();
    AddRecordOptions(*command, *options);
    command->callback([&line, file, options] {
        PictureEditing editing(line.open(*file).connection(), line.environment());
        editing.AddPicRec();
        line.out() << Apply(editing, *options, line.environment().talk) << Qt::endl;
    });
}

void AddEdit(CLI::App& picture, CommandLine& line)
{
    auto* command = picture.add_subcommand("edit", "Change a picture's record");
    auto arguments = AddPictureArguments(*command);
    auto options = std::make_shared<RecordOptions>();
    command->add_option("--image", options->image, "Another picture; \"\" for none");
    AddRecordOptions(*command, *options);
    command->callback([&line, arguments, options] {
        PictureEditing editing(arguments->open(line), line.environment());
        editing.EditPicRec(arguments->pictureId);
        Apply(editing, *options, line.environment().talk);
    });
}

void AddList(CLI::App& picture, CommandLine& line)
{
    auto* command = picture.add_subcommand("list", "List the pictures of a family file");
    auto file = std::make_shared<std::string>();
    auto query = std::make_shared<std::optional<std::string>>();
    command->add_option("FILE", *file, "The family file")->required();
    command->add_option("--query", *query, "Only the pictures that this query selects, with the columns that it shows");
    command->callback([&line, file, query] {
        if (*query) {
            PrintPictures(PictureTable(line.open(*file).connection(), CommandLine::textOf(**query)), line);
            return;
        }
        Listing listing({QStringLiteral("ID"), QStringLiteral("Date"), QStringLiteral("Place"), QStringLiteral("Title"),
                         QStringLiteral("File")});
        for (const PictureRecord& record : ListPictures(line.open(*file).connection())) {
            listing.row({record.id, record.date.trimmed(), record.place, record.title, record.filename});
        }
        listing.print(line);
    });
}

void AddShow(CLI::App& picture, CommandLine& line)
{
    auto* command = picture.add_subcommand("show", "Show a picture's record");
    auto arguments = AddPictureArguments(*command);
    command->callback([&line, arguments] {
        const PictureRecord record = LoadPictureRecord(arguments->open(line), arguments->pictureId);
        Listing listing({QStringLiteral("Field"), QStringLiteral("Value")});
        listing.row({QStringLiteral("ID"), record.id});
        listing.row({QStringLiteral("Title"), record.title});
        listing.row({QStringLiteral("Date"), record.date.trimmed()});
        listing.row({QStringLiteral("Place"), record.place});
        listing.row({QStringLiteral("Description"), record.description});
        listing.row({QStringLiteral("File"), record.filename});
        listing.row({QStringLiteral("Type"), record.type});
        listing.row({QStringLiteral("Width"), record.size.width()});
        listing.row({QStringLiteral("Height"), record.size.height()});
        listing.row({QStringLiteral("Names"),
                     record.names == NamePlacement::Left ? QStringLiteral("left") : QStringLiteral("above")});
        listing.row({QStringLiteral("Marks"),
                     record.pointer == PointerTool::Rectangle ? QStringLiteral("rectangle") : QStringLiteral("arrow")});
        listing.row({QStringLiteral("Changed"), record.modified});
        listing.print(line);
    });
}

void AddDelete(CLI::App& picture, CommandLine& line)
{
    auto* command = picture.add_subcommand("delete", "Delete a picture with its record and marks, after asking");
    auto arguments = AddPictureArguments(*command);
    command->callback([&line, arguments] {
        Connection& connection = arguments->open(line);
        LoadPictureRecord(connection, arguments->pictureId);
        Require(DeletePicture(connection, arguments->pictureId, line.environment().talk));
    });
}

enum class Part { Picture, Thumbnail };

/// Writes a picture beside its place first, so that a file that stands there is replaced by a whole one or not at all.
void Extract(Connection& connection, int pictureId, Part part, const QString& target, Talk& talk)
{
    const QString column = part == Part::Picture ? QStringLiteral("Picture") : QStringLiteral("Thumb");
    Statement stored =
        connection.prepare(QStringLiteral("SELECT 1 FROM AlbumTOC WHERE PicId = ?1 AND %1 IS NOT NULL").arg(column));
    if (!stored.bind(1, pictureId).step()) {
        throw Error(part == Part::Picture ? QStringLiteral("The record has no picture.")
                                          : QStringLiteral("The picture has no thumbnail."));
    }
    const QFileInfo file(target);
    if (file.exists() && (!file.isFile() || IsSameFile(target, connection.path()))) {
        throw Error(QStringLiteral("%1 cannot be replaced by a picture.").arg(target));
    }
    Require(!file.exists() || talk.ask(albummessages::ReplaceFile(target)) == Button::Yes);
    UnfinishedFile unfinished(file.absoluteFilePath());
    SaveFieldToFile(connection, {QStringLiteral("AlbumTOC"), column, pictureId}, unfinished.path());
    unfinished.putInPlace();
}

void AddExtract(CLI::App& picture, CommandLine& line)
{
    auto* command = picture.add_subcommand("extract", "Copy a picture out of the family file");
    auto arguments = AddPictureArguments(*command);
    auto target = std::make_shared<std::string>();
    auto thumbnail = std::make_shared<bool>(false);
    command->add_option("OUT", *target, "The file to write")->required();
    command->add_flag("--thumbnail", *thumbnail, "The picture's thumbnail, a Windows bitmap, instead");
    command->callback([&line, arguments, target, thumbnail] {
        Connection& connection = arguments->open(line);
        LoadPictureRecord(connection, arguments->pictureId);
        Extract(connection, arguments->pictureId, *thumbnail ? Part::Thumbnail : Part::Picture,
                CommandLine::pathOf(*target), line.environment().talk);
    });
}

} // namespace

std::shared_ptr<PictureArguments> AddPictureArguments(CLI::App& command)
{
    auto arguments = std::make_shared<PictureArguments>();
    command.add_option("FILE", arguments->file, "The family file")->required();
    command.add_option("PICID", arguments->pictureId, "The number of the picture, as listed")->required();
    return arguments;
}

void AddPictureCommands(CLI::App& app, CommandLine& line)
{
    AddGroup(app, "picture", "Keep the pictures of the album", [&line](CLI::App& picture) {
        AddAdd(picture, line);
        AddEdit(picture, line);
        AddList(picture, line);
        AddShow(picture, line);
        AddDelete(picture, line);
        AddExtract(picture, line);
    });
}

} // namespace stemwright
