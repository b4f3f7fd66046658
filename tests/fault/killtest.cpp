// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// Ends imports, changes of the album, upgrades or publications at random moments and holds what they leave behind
// against what it may be: a family file that `stemwright-cli check` passes and that holds all of the old or all of the
// new, or that is untouched, and a site that the next publication makes whole again. Status 0 when all of it held, 1
// when not. CONTRIBUTING.md says how to run it at length.

#include "base/files.h"
#include "cli/cliworld.h"
#include "fault/fingerprint.h"
#include "oldalbumgenerator.h"
#include "treegenerator.h"

#include <CLI/CLI.hpp>

#include <QtCore/QCoreApplication>
#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>

#include <SQLiteCpp/SQLiteCpp.h>

#include <csignal>
#include <iostream>
#include <map>
#include <random>
#include <stdexcept>
#include <thread>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

struct Options {
    std::string work;
    int times = 100;
    unsigned seed = 1;
    std::string signal = "KILL";
};

/// Something that was left behind as it must not be.
struct Wrong : std::runtime_error {
    explicit Wrong(const QString& what) : std::runtime_error(what.toStdString()) {}
};

QByteArray Tree(std::uint32_t individuals)
{
    QByteArray text;
    bench::GenerateTree(individuals, [&text](std::string_view piece) {
        text.append(piece.data(), static_cast<qsizetype>(piece.size()));
    });
    return text;
}

void Copy(const QString& from, const QString& to)
{
    QFile::remove(to);
    if (!QFile::copy(from, to)) {
        throw Wrong{QStringLiteral("cannot copy %1").arg(from)};
    }
}

/// Every file's name and content below a folder.
QByteArray SiteSum(const QString& folder)
{
    QStringList files;
    for (QDirIterator all(folder, QDir::Files, QDirIterator::Subdirectories); all.hasNext();) {
        files << all.next();
    }
    files.sort();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& file : files) {
        hash.addData(file.toUtf8());
        hash.addData(ReadWholeFile(file));
    }
    return hash.result();
}

class KillTest
{
public:
    explicit KillTest(const Options& options) : m_options(options), m_random(options.seed) {}

    void killImports();
    /// A record is applied with another picture and all of its marks; or a picture goes with its record and marks.
    void killEdits();
    void killDeletions();
    /// A database of an earlier release, with all pictures outside of it, and a file of the engine of an older version.
    void killConversions();
    void killUpgrades();
    void killPublications();
    void killAlbums();
    void killOldAlbums();

private:
    void run(const QStringList& arguments) const
    {
        const Outcome outcome = m_world.run(arguments);
        if (outcome.status != 0) {
            throw Wrong{QStringLiteral("%1: %2").arg(arguments.join(u' '), outcome.errors)};
        }
    }

    void makeBase(std::uint32_t individuals)
    {
        const QString tree = m_world.write(QStringLiteral("old.ged"), Tree(individuals));
        run({QStringLiteral("new"), m_base});
        run({QStringLiteral("--yes"), QStringLiteral("import"), m_base, tree});
    }

    /// The sample family is the base: its picture 8 has twelve marks.
    void takeSample() { Copy(STEMWRIGHT_SAMPLE, m_base); }

    /// Interrupts a command that changes the base by one action.
    void killChange(const QStringList& arguments);
    void killPublication();
    /// Interrupts the opening of the base, which upgrades it.
    void killOpening();

    double secondsOf(const QStringList& arguments) const
    {
        QElapsedTimer timer;
        timer.start();
        run(arguments);
        return static_cast<double>(timer.nsecsElapsed()) / 1e9;
    }

    /// Starts the command and sends the signal within `seconds`, spread evenly; whether it was still running. The time
    /// follows the machine, which may be busy with other things now and then: shorter after a signal that came too
    /// late, a little longer after any other.
    bool interrupt(const QStringList& arguments, double& seconds);

    /// The fingerprint of a file that has to pass the check, without the moments at which its pictures were changed.
    QString soundFile(const QString& path) const
    {
        run({QStringLiteral("check"), path});
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
            .exec("UPDATE AlbumTOC SET ModificationDate = NULL");
        return Fingerprint(path);
    }

    void report(int inTime, const QString& more) const;

    const Options& m_options;
    std::mt19937 m_random;
    CliWorld m_world;
    const QString m_file = m_world.path(QStringLiteral("work.kvf"));
    const QString m_site = m_world.path(QStringLiteral("site"));
    const QString m_base = m_world.path(QStringLiteral("base.kvf"));
    const QStringList m_publish = {QStringLiteral("--yes"), QStringLiteral("publish"), m_file,
                                   QStringLiteral("--output"), m_site};
};

bool KillTest::interrupt(const QStringList& arguments, double& seconds)
{
    QProcess program;
    program.setProcessEnvironment(m_world.environment());
    program.setStandardInputFile(QProcess::nullDevice());
    program.start(QStringLiteral(STEMWRIGHT_CLI), arguments);
    if (!program.waitForStarted()) {
        throw Wrong{QStringLiteral("the program does not start")};
    }
    std::this_thread::sleep_for(std::chrono::duration<double>(std::uniform_real_distribution(0.0, seconds)(m_random)));
    const int signal = m_options.signal == "INT" ? SIGINT : m_options.signal == "TERM" ? SIGTERM : SIGKILL;
    ::kill(static_cast<pid_t>(program.processId()), signal);
    if (!program.waitForFinished()) {
        throw Wrong{QStringLiteral("the program goes on after the signal")};
    }
    const bool inTime = program.exitStatus() == QProcess::CrashExit;
    seconds *= inTime ? 1.05 : 0.7;
    return inTime;
}

/// A run in which hardly any signal came in time has shown nothing.
void KillTest::report(int inTime, const QString& more) const
{
    const QString text = QStringLiteral("%1 of %2 signals came in time; %3").arg(inTime).arg(m_options.times).arg(more);
    if (inTime * 3 < m_options.times) {
        throw Wrong{text};
    }
    std::cout << text.toStdString() << std::endl;
}

void KillTest::killImports()
{
    makeBase(2'000);
    killChange({"--yes", "import", m_file, m_world.write("new.ged", Tree(20'000))});
}

void KillTest::killEdits()
{
    takeSample();
    const QString other = m_world.path("other.jpg");
    run({"picture", "extract", m_base, "21", other});
    killChange({"--yes", "picture", "edit", m_file, "8", "--title", "New", "--marks", "arrow", "--image", other});
}

void KillTest::killDeletions()
{
    takeSample();
    killChange({"--yes", "picture", "delete", m_file, "8"});
}

void KillTest::killChange(const QStringList& arguments)
{
    Copy(m_base, m_file);
    const QString before = soundFile(m_file);
    Copy(m_base, m_file);
    double seconds = secondsOf(arguments);
    const QString after = soundFile(m_file);
    int inTime = 0;
    int old = 0;
    for (int number = 0; number < m_options.times; ++number) {
        Copy(m_base, m_file);
        inTime += interrupt(arguments, seconds) ? 1 : 0;
        const QString found = soundFile(m_file);
        if (found != before && found != after) {
            throw Wrong{QStringLiteral("the file holds neither state: %1, not %2 or %3").arg(found, before, after)};
        }
        old += found == before ? 1 : 0;
        const QString backup = m_world.path(QStringLiteral("work.ffb"));
        if (QFile::exists(backup)) {
            const QString restored = m_world.path(QStringLiteral("restored.kvf"));
            Copy(backup, restored);
            if (soundFile(restored) != before) {
                throw Wrong{QStringLiteral("the backup is not the old file")};
            }
        }
    }
    report(inTime, QStringLiteral("%1 old states, %2 new ones").arg(old).arg(m_options.times - old));
}

void KillTest::killConversions()
{
    const QString fixture = QStringLiteral(STEMWRIGHT_TEST_DATA "/jet/family-2.0/");
    Copy(fixture + "cats-2.0.kvf", m_base);
    for (const char* picture : {"tom.jpg", "big121.jpg", "Zofia.JPG", "emblem.gif"}) {
        Copy(fixture + picture, m_world.path(picture));
    }
    killOpening();
}

void KillTest::killUpgrades()
{
    takeSample();
    SQLite::Database(m_base.toStdString(), SQLite::OPEN_READWRITE)
        .exec("UPDATE GenInfo SET StemoraVersion = '2.2.9910'");
    killOpening();
}

void KillTest::killOpening()
{
    const QStringList open = {"--yes", "open", m_file};
    const QByteArray before = ReadWholeFile(m_base);
    const QString backup = m_world.path("work.ffb");
    Copy(m_base, m_file);
    double seconds = secondsOf(open);
    const QByteArray wholeBackup = ReadWholeFile(backup);
    const QString after = soundFile(m_file);
    int inTime = 0;
    int old = 0;
    for (int number = 0; number < m_options.times; ++number) {
        Copy(m_base, m_file);
        QFile::remove(backup);
        inTime += interrupt(open, seconds) ? 1 : 0;
        if (QFile::exists(backup) && ReadWholeFile(backup) != wholeBackup) {
            throw Wrong{QStringLiteral("the backup is not whole")};
        }
        if (ReadWholeFile(m_file) == before) {
            ++old;
        } else if (soundFile(m_file) != after) {
            throw Wrong{QStringLiteral("the file is neither untouched nor upgraded")};
        }
    }
    run(open);
    if (!QDir(m_world.path({})).entryList({"*unfinished*"}).isEmpty()) {
        throw Wrong{QStringLiteral("what was left unfinished is not cleared away")};
    }
    report(inTime, QStringLiteral("%1 old states, %2 new ones").arg(old).arg(m_options.times - old));
}

void KillTest::killPublications()
{
    makeBase(5'000);
    for (const char* display : {"Outline", "Descendant Tree", "Ancestor Tree"}) {
        run({QStringLiteral("setup"), QStringLiteral("tree"), m_base, QStringLiteral("Default"), QStringLiteral("add"),
             QStringLiteral("--head"),
             QLatin1StringView(display) == "Ancestor Tree" ? QStringLiteral("4000") : QStringLiteral("1"),
             QStringLiteral("--display"), QLatin1StringView(display)});
    }
    killPublication();
}

void KillTest::killAlbums()
{
    takeSample();
    killPublication();
}

void KillTest::killOldAlbums()
{
    makeBase(1'000);
    const QByteArray album = bench::GenerateOldAlbum(STEMWRIGHT_OLD_ALBUM, {3'000, 20'000});
    killChange({"--yes", "import-album", m_file, m_world.write("old.mdb", album)});
}

void KillTest::killPublication()
{
    Copy(m_base, m_file);
    run(m_publish);
    const QString before = soundFile(m_file);
    double seconds = secondsOf(m_publish);
    const QByteArray site = SiteSum(m_site);
    int inTime = 0;
    for (int number = 0; number < m_options.times; ++number) {
        inTime += interrupt(m_publish, seconds) ? 1 : 0;
        if (soundFile(m_file) != before) {
            throw Wrong{QStringLiteral("the publication changed the family file")};
        }
    }
    run(m_publish);
    if (SiteSum(m_site) != site) {
        throw Wrong{QStringLiteral("the publication after the last one that was interrupted is another")};
    }
    report(inTime, QStringLiteral("the tree stayed, and the next publication is whole"));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const std::map<std::string, void (KillTest::*)()> works = {
        {"import", &KillTest::killImports},   {"edit", &KillTest::killEdits},
        {"delete", &KillTest::killDeletions}, {"convert", &KillTest::killConversions},
        {"upgrade", &KillTest::killUpgrades}, {"publish", &KillTest::killPublications},
        {"album", &KillTest::killAlbums},     {"oldalbum", &KillTest::killOldAlbums}};
    Options options;
    CLI::App app("Ends the program at random moments and looks at what it leaves behind.");
    app.add_option("WORK", options.work, "What to interrupt")->required()->check(CLI::IsMember(works));
    app.add_option("--times", options.times, "How often")->capture_default_str()->check(CLI::PositiveNumber);
    app.add_option("--seed", options.seed, "Chooses the moments")->capture_default_str();
    app.add_option("--signal", options.signal, "How")
        ->capture_default_str()
        ->check(CLI::IsMember({"KILL", "INT", "TERM"}));
    CLI11_PARSE(app, argc, argv);
    try {
        KillTest test(options);
        (test.*works.at(options.work))();
    } catch (const std::exception& exception) {
        std::cerr << "killtest: " << exception.what() << std::endl;
        return 1;
    }
    return 0;
}
