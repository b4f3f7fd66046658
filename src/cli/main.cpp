// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "base/version.h"
#include "cli/commandline.h"
#include "cli/consoletalk.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

namespace stemwright
{

namespace
{

void AddGlobalOptions(CLI::App& app, GlobalOptions& options)
{
    app.set_version_flag("--version", std::string("stemwright-cli ") + versionText);
    app.require_subcommand(1);
    auto* yes = app.add_flag_callback(
        "--yes", [&options] { options.answers = Answers::Yes; }, "Answer every question with Yes or OK");
    app.add_flag_callback(
           "--no", [&options] { options.answers = Answers::No; }, "Answer every question with No or Cancel")
        ->excludes(yes);
    app.add_flag("--quiet", options.quiet, "Print errors only");
    app.add_flag_callback(
        "--json", [&options] { options.format = OutputFormat::Json; }, "Print lists as JSON");
}

/// Runs the command; 0 done, 1 the program said why on standard error, 2 wrong usage.
int Run(int argc, char** argv)
{
    GlobalOptions options;
    ConsoleTalk talk(options);
    try {
        FileSettings settings;
        const SystemClock clock;
        const ApplicationFolder application = ApplicationFolder::ofProgram();
        Environment environment{talk, settings, clock, application};
        CommandLine line(environment, options);

        CLI::App app("Keeps a family tree and a photo album in one file and publishes both as a web site.",
                     "stemwright-cli");
        AddGlobalOptions(app, options);
        AddFileCommands(app, line);
        AddGedcomCommands(app, line);
        AddSetupCommands(app, line);
        AddPublishCommands(app, line);
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return app.exit(error) == 0 ? 0 : 2;
        }
        return 0;
    } catch (const AlreadyReported&) {
        return 1;
    } catch (const std::exception& exception) {
        talk.tell({{}, ErrorText(exception), Icon::Critical});
        return 1;
    }
}

} // namespace

} // namespace stemwright

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    return stemwright::Run(argc, argv);
}
