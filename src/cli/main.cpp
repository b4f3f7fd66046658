// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/error.h"
#include "base/version.h"
#include "cli/commandline.h"
#include "cli/consoletalk.h"
#include "store/engine/engineerror.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLoggingCategory>

#include <clocale>
#include <cstdio>
#include <cstring>

#include <langinfo.h>

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

/// Arguments, file names and texts are UTF-8, also where the environment names no such encoding, as on a bare system;
/// Qt would decide the same, but say so on each run.
void UseUtf8()
{
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(::nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

/// What was printed so far may still wait to be written, and the disk that it goes to may be full.
void FinishOutput(CommandLine& line)
{
    line.out().flush();
    if (line.out().status() != QTextStream::Ok || std::fflush(stdout) != 0) {
        throw Error(QStringLiteral("The output cannot be written: %1.").arg(qt_error_string()));
    }
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
        AddPeopleCommands(app, line);
        AddPictureCommands(app, line);
        AddMarkCommands(app, line);
        AddQueryCommands(app, line);
        AddExportCommands(app, line);
        AddOldAlbumCommands(app, line);
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return app.exit(error) == 0 ? 0 : 2;
        }
        FinishOutput(line);
        return 0;
    } catch (const AlreadyReported&) {
        return 1;
    } catch (const std::exception& exception) {
        talk.tell({{}, ReasonText(exception), Icon::Critical});
        return 1;
    }
}

} // namespace

} // namespace stemwright

int main(int argc, char** argv)
{
    stemwright::UseUtf8();
    const QCoreApplication application(argc, argv);
    // What a decoder has to say about a flaw of a picture is no message to a user.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));
    return stemwright::Run(argc, argv);
}
