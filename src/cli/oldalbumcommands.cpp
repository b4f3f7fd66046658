// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "base/files.h"
#include "cli/listing.h"
#include "cli/matchdecisions.h"
#include "cli/matchdialogue.h"
#include "oldalbum/importprev2album.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace stemwright
{

namespace
{

/// Imports and prints the report, also that of an import which the user stopped.
void Import(CommandLine& line, const QString& path)
{
    AlbumImportReport report;
    const bool ranToItsEnd = ImportPreV2Album(line.file(), path, line.environment(), report);
    if (report.outcome == AlbumImportOutcome::Completed || report.outcome == AlbumImportOutcome::Stopped) {
        line.printReport(report);
    }
    Require(ranToItsEnd);
}

void AddImportAlbum(CLI::App& app, CommandLine& line)
{
    auto* command =
        app.add_subcommand("import-album", "Import a photo album of a release before 2.0 into a family file");
    auto file = std::make_shared<std::string>();
    auto album = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The family file")->required();
    command->add_option("OLD.mdb", *album, "The old album")->required();
    command->callback([&line, file, album] {
        line.open(*file);
        Import(line, CommandLine::pathOf(*album));
    });
}

QJsonArray PicturesOf(const OldName& name)
{
    QJsonArray pictures;
    for (const OldPlace& place : name.places) {
        pictures.append(place.pictureId);
    }
    return pictures;
}

QJsonArray ProposalsOf(const NameMatching& matching)
{
    const NameIndex& individuals = matching.individuals();
    QJsonArray proposals;
    for (const NameRow row : matching.proposals()) {
        proposals.append(QJsonObject{{QStringLiteral("Person ID"), individuals.id(row)},
                                     {QStringLiteral("Name"), individuals.fullName(row)},
                                     {QStringLiteral("Birth Date"), individuals.birthDate(row)},
                                     {QStringLiteral("Death Date"), individuals.deathDate(row)}});
    }
    return proposals;
}

/// An array as a cell of a table: its numbers, or the numbers and names of its persons.
QString CellOf(const QJsonArray& array)
{
    QStringList texts;
    for (const QJsonValue value : array) {
        texts << (value.isDouble() ? QString::number(value.toInt())
                                   : QStringLiteral("%1 %2")
                                         .arg(value[u"Person ID"].toInt())
                                         .arg(value[u"Name"].toString().trimmed()));
    }
    return texts.join(QStringLiteral("; "));
}

/// Lists the names with their proposals.
void ListNames(NameMatching& matching, CommandLine& line)
{
    Listing listing(
        {QStringLiteral("Name"), QStringLiteral("Pictures"), QStringLiteral("Marked"), QStringLiteral("Proposals")});
    const bool json = line.options().format == OutputFormat::Json;
    for (std::size_t i = 0; i < matching.names().size(); ++i) {
        matching.begin(i);
        const OldName& name = matching.current();
        const QJsonArray pictures = PicturesOf(name);
        const QJsonArray proposals = ProposalsOf(matching);
        listing.row({name.name, json ? QJsonValue(pictures) : CellOf(pictures), name.marked,
                     json ? QJsonValue(proposals) : CellOf(proposals)});
    }
    listing.print(line);
}

void AddMatch(CLI::App& app, CommandLine& line)
{
    auto* command =
        app.add_subcommand("match", "Match the names of an imported old album with the individuals of the tree");
    auto file = std::make_shared<std::string>();
    auto decisions = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The family file")->required();
    command->add_option("--decisions", *decisions,
                        "A JSON file that decides: the list of names, each with a Decision, which is the number of an "
                        "individual or \"next\"");
    command->callback([&line, file, decisions] {
        Connection& connection = line.open(*file).connection();
        NameMatching matching(connection, line.environment().talk);
        if (matching.names().empty()) {
            throw Error(QStringLiteral("There are no names of an old album in the family file."));
        }
        if (!decisions->empty()) {
            Require(FollowDecisions(matching, connection, ReadWholeFile(CommandLine::pathOf(*decisions))));
        } else if (line.canAsk() && line.options().format == OutputFormat::Text) {
            MatchOnTerminal(matching, line);
        } else {
            ListNames(matching, line);
        }
    });
}

} // namespace

void AddOldAlbumCommands(CLI::App& app, CommandLine& line)
{
    AddImportAlbum(app, line);
    AddMatch(app, line);
}

} // namespace stemwright
