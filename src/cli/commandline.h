// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"

#include <CLI/CLI.hpp>

#include <QtCore/QTextStream>

/// What the commands of stemwright-cli share: the world around them, the output, and how a command says that it failed.
/// Each file of commands adds its own to the application; a command throws Error to end with status 1.
namespace stemwright
{

/// The answer to every question, when it was given on the command line.
enum class Answers { Ask, Yes, No };

enum class OutputFormat { Text, Json };

/// The global options, which stand before the command.
struct GlobalOptions {
    Answers answers = Answers::Ask;
    bool quiet = false;
    OutputFormat format = OutputFormat::Text;
};

/// Ends a command with status 1 after a procedure has already told the user why.
struct AlreadyReported {
};

class CommandLine
{
public:
    CommandLine(Environment& environment, const GlobalOptions& options);

    Environment& environment() { return m_environment; }

    const GlobalOptions& options() const { return m_options; }

    /// Whether somebody sits at a terminal and is to be asked.
    bool canAsk() const;

    /// Standard output, for what the command was asked for.
    QTextStream& out() { return m_out; }

    /// Prints the report of an import: the one for programs (--json), or the one for readers unless they want quiet.
    /// Only what is printed is composed, by the report's ReportJson() and ReportText().
    template <class Report>
    void printReport(const Report& report)
    {
        if (m_options.format == OutputFormat::Json) {
            m_out << QString::fromUtf8(ReportJson(report));
        } else if (!m_options.quiet) {
            m_out << ReportText(report);
        }
    }

    /// Opens a family file for the rest of the command. Throws AlreadyReported when it cannot be opened.
    FamilyFile& open(const std::string& path);

    FamilyFile& file() { return m_file; }

    /// A path as typed, from the system's encoding.
    static QString pathOf(const std::string& argument);
    /// Any other argument as typed.
    static QString textOf(const std::string& argument);

private:
    Environment& m_environment;
    const GlobalOptions& m_options;
    QTextStream m_out;
    FamilyFile m_file;
};

/// Throws AlreadyReported unless the procedure succeeded.
void Require(bool succeeded);

/// Takes a COLUMN=VALUE argument apart. Wrong usage when it has no column or no "=". `form` is what the help calls it.
std::pair<QString, QString> SplitAssignment(const std::string& assignment, const std::string& form = "COLUMN=VALUE");

/// Adds a command that has commands of its own. `addCommands` is called with it when it is asked for: making all
/// commands at every start would take longer than many a command does.
CLI::App* AddGroup(CLI::App& app, const std::string& name, const std::string& description,
                   std::function<void(CLI::App&)> addCommands);

void AddFileCommands(CLI::App& app, CommandLine& line);
void AddGedcomCommands(CLI::App& app, CommandLine& line);
void AddSetupCommands(CLI::App& app, CommandLine& line);
void AddPublishCommands(CLI::App& app, CommandLine& line);
void AddPictureCommands(CLI::App& app, CommandLine& line);
void AddMarkCommands(CLI::App& app, CommandLine& line);
void AddQueryCommands(CLI::App& app, CommandLine& line);
void AddExportCommands(CLI::App& app, CommandLine& line);
void AddPeopleCommands(CLI::App& app, CommandLine& line);
void AddOldAlbumCommands(CLI::App& app, CommandLine& line);

} // namespace stemwright
