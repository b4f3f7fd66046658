// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "cli/commandline.h"
#include "store/file/checkfamilyfile.h"
#include "store/file/fileflows.h"

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace stemwright
{

namespace
{

void PrintReport(CommandLine& line, const FamilyFileReport& report)
{
    if (line.options().format == OutputFormat::Json) {
        const QJsonObject object{{QStringLiteral("file"), line.file().path()},
                                 {QStringLiteral("sound"), report.faults.isEmpty()},
                                 {QStringLiteral("faults"), QJsonArray::fromStringList(report.faults)},
                                 {QStringLiteral("notes"), QJsonArray::fromStringList(report.notes)}};
        line.out() << QJsonDocument(object).toJson();
        return;
    }
    for (const QString& fault : report.faults) {
        line.out() << QStringLiteral("Fault: ") << fault << Qt::endl;
    }
    for (const QString& note : report.notes) {
        line.out() << QStringLiteral("Note: ") << note << Qt::endl;
    }
    if (report.faults.isEmpty() && !line.options().quiet) {
        line.out() << QStringLiteral("%1 is sound.").arg(QDir::toNativeSeparators(line.file().path())) << Qt::endl;
    }
}

void Check(CommandLine& line, const std::string& path)
{
    const FamilyFileReport report = CheckFamilyFile(line.open(path).connection());
    PrintReport(line, report);
    if (!report.faults.isEmpty()) {
        throw Error(QStringLiteral("The family file has faults (%1).").arg(report.faults.size()));
    }
}

void AddNew(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("new", "Create an empty family file");
    auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "The family file to create")->required();
    command->callback(
        [&line, path] { Require(CreateNewFamilyFile(line.file(), CommandLine::pathOf(*path), line.environment())); });
}

void AddOpen(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("open", "Open a family file and remember it for the next start");
    auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "The family file")->required();
    command->callback(
        [&line, path] { Require(OpenAlbum(line.file(), CommandLine::pathOf(*path), line.environment())); });
}

void AddSaveAs(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("save-as", "Copy a family file");
    auto path = std::make_shared<std::string>();
    auto target = std::make_shared<std::string>();
    command->add_option("FILE", *path, "The family file")->required();
    command->add_option("TARGET", *target, "Where the copy goes")->required();
    command->callback([&line, path, target] {
        Require(SaveFamilyFileAs(line.open(*path), CommandLine::pathOf(*target), line.environment()));
    });
}

void AddCheck(CLI::App& app, CommandLine& line)
{
    auto* command = app.add_subcommand("check", "Look for damage and for links that lead nowhere");
    auto path = std::make_shared<std::string>();
    command->add_option("FILE", *path, "The family file")->required();
    command->callback([&line, path] { Check(line, *path); });
}

} // namespace

void AddFileCommands(CLI::App& app, CommandLine& line)
{
    AddNew(app, line);
    AddOpen(app, line);
    AddSaveAs(app, line);
    AddCheck(app, line);
}

} // namespace stemwright
