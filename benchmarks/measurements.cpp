// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "measurements.h"

#include "process.h"
#include "stopwatch.h"
#include "treegenerator.h"
#include "workfolder.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace stemwright::bench
{

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t fewestRounds = 2;
constexpr std::size_t mostRounds = 9;

/// One size's files and the commands on them.
class Stage
{
public:
    explicit Stage(const Bench& bench) : m_bench(bench), m_memory(bench.memory), m_disk(bench.disk) {}

    std::string inMemory(const std::string& name) const { return m_memory.path(name); }

    std::string onDisk(const std::string& name) const { return m_disk.path(name); }

    ProcessResult run(std::vector<std::string> command) const
    {
        command[0] = m_bench.programs + '/' + command[0];
        return RunProcess(command, m_memory.path(""));
    }

    /// Runs a command of the command line, every question answered with Yes.
    ProcessResult stemwright(std::vector<std::string> command) const
    {
        command.insert(command.begin(), {"stemwright-cli", "--yes", "--quiet"});
        return run(std::move(command));
    }

    void writeTree(std::uint32_t individuals, const std::string& path) const
    {
        std::ofstream file(path, std::ios::binary);
        GenerateTree(individuals, [&file](std::string_view piece) {
            file.write(piece.data(), static_cast<std::streamsize>(piece.size()));
        });
        if (!file.flush()) {
            throw std::runtime_error(path + " cannot be written");
        }
    }

private:
    const Bench& m_bench;
    WorkFolder m_memory;
    WorkFolder m_disk;
};

/// Repeats a round as long as the time allows.
template <typename MeasureRound>
std::vector<Round> Repeat(const Bench& bench, MeasureRound measureRound)
{
    const Stopwatch watch;
    std::vector<Round> rounds;
    while (rounds.size() < fewestRounds || (rounds.size() < mostRounds && watch.seconds() < bench.secondsPerPair)) {
        rounds.push_back(measureRound());
    }
    return rounds;
}

/// What a limit reports of itself.
struct LimitReport {
    /// From the start of the process to the end of its work, less what it does to prepare itself.
    double seconds = 0;
    /// How many files were written; only limit_publish tells.
    std::uint64_t files = 0;
};

LimitReport RunLimit(const Stage& stage, const std::vector<std::string>& command)
{
    const ProcessResult process = stage.run(command);
    std::istringstream output(process.output);
    double began = 0;
    LimitReport report;
    output >> began >> report.seconds >> report.files;
    report.seconds += began - process.started;
    return report;
}

/// A family file whose only setup asks for personal pages of the whole tree, with the items that a genealogist would
/// choose.
void PrepareFamilyFile(const Stage& stage, std::uint32_t individuals, const std::string& file)
{
    const std::string tree = stage.inMemory("tree.ged");
    stage.writeTree(individuals, tree);
    stage.stemwright({"new", file});
    stage.stemwright({"import", file, tree});
    stage.stemwright({"setup", "set", file, "Default", "PersPages=1"});
    for (const char* item : {"Birth", "Christening", "Marriage", "Occupation", "Residence", "Death", "Burial"}) {
        stage.stemwright({"setup", "items", file, "Default", "add", item});
    }
    fs::remove(tree);
}

} // namespace

Needs NeedsOf(std::uint32_t individuals)
{
    constexpr std::uint64_t always = 20'000'000;
    // A page takes whole blocks of 4 KB and an entry in the folder; packed, it takes its bytes.
    constexpr std::uint64_t memoryPerIndividual = 12'000;
    constexpr std::uint64_t diskPerIndividual = 8'000;
    return {always + individuals * memoryPerIndividual, always + individuals * diskPerIndividual};
}

PairResult MeasureImport(const Bench& bench, std::uint32_t individuals)
{
    const Stage stage(bench);
    const std::string tree = stage.inMemory("tree.ged");
    const std::string file = stage.inMemory("tree.kvf");
    const std::string limitFile = stage.inMemory("limit.kvf");
    stage.writeTree(individuals, tree);
    std::uint64_t peakBytes = 0;
    const auto rounds = Repeat(bench, [&]() -> Round {
        stage.stemwright({"new", file});
        const ProcessResult import = stage.stemwright({"import", file, tree});
        peakBytes = std::max(peakBytes, import.peakBytes);
        const LimitReport limit = RunLimit(stage, {"limit_import", file, limitFile});
        RemoveAndSettle(file);
        RemoveAndSettle(limitFile);
        return {import.seconds, limit.seconds};
    });
    return Summary(individuals, rounds, peakBytes);
}

PairResult MeasurePublishing(const Bench& bench, std::uint32_t individuals)
{
    const Stage stage(bench);
    const std::string pristine = stage.inMemory("pristine.kvf");
    const std::string file = stage.inMemory("tree.kvf");
    const std::string site = stage.inMemory("site");
    const std::string archive = stage.onDisk("site.pack");
    PrepareFamilyFile(stage, individuals, pristine);
    std::uint64_t peakBytes = 0;
    const auto rounds = Repeat(bench, [&]() -> Round {
        // The first publication of a file is measured each time; a second one would find its work tables in place.
        fs::copy_file(pristine, file, fs::copy_options::overwrite_existing);
        const ProcessResult publishing = stage.stemwright({"publish", file, "--head", "1", "--output", site});
        peakBytes = std::max(peakBytes, publishing.peakBytes);
        if (!fs::exists(archive)) {
            stage.run({"limit_publish", "pack", site, archive});
        }
        RemoveAndSettle(site);
        const LimitReport limit = RunLimit(stage, {"limit_publish", "write", archive, site});
        RemoveAndSettle(site);
        if (limit.files < individuals / 2) {
            throw std::runtime_error("The published site holds only " + std::to_string(limit.files) + " files");
        }
        return {publishing.seconds, limit.seconds};
    });
    return Summary(individuals, rounds, peakBytes);
}

} // namespace stemwright::bench
