// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "albummeasurements.h"
#include "measurements.h"
#include "workfolder.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <set>

/// stemwright-bench: measures the pairs at every size and prints one table. ./bench in the project's root builds and
/// starts it.
namespace
{

using namespace stemwright::bench;

/// A kind of work that can be measured.
struct Work {
    std::string name;
    PairResult (*measure)(const Bench&, std::uint32_t);
    Goals goals;
};

const std::vector<Work>& AllWork()
{
    static const std::vector<Work> work = {
        {"import", MeasureImport, {2.5, 1.25, 40'000'000, 100}},
        {"publish", MeasurePublishing, {2.5, 1.25, 60'000'000, 2'000}},
        {"desctree", MeasureDescendantTree, {2.5, 1.25, 60'000'000, 2'000}},
        {"anctree", MeasureAncestorTree, {2.5, 1.25, 60'000'000, 2'000}},
    };
    return work;
}

/// Work that is measured at one size.
struct AlbumWork {
    std::string name;
    void (*measure)(const Bench&, Table&);
};

const std::vector<AlbumWork>& AllAlbumWork()
{
    static const std::vector<AlbumWork> work = {
        {"thumbnails", MeasureThumbnails}, {"names", MeasureNames},          {"opening", MeasureOpening},
        {"large", MeasureLargePictures},   {"album", MeasurePublishedAlbum}, {"windows", MeasureWindows},
        {"progress", MeasureProgress},     {"oldalbum", MeasureOldAlbum},
    };
    return work;
}

std::set<std::string> NamesOfWork()
{
    std::set<std::string> names;
    for (const Work& work : AllWork()) {
        names.insert(work.name);
    }
    for (const AlbumWork& work : AllAlbumWork()) {
        names.insert(work.name);
    }
    return names;
}

struct Options {
    Bench bench;
    std::vector<std::uint32_t> sizes;
    std::vector<std::string> only;
    bool quick = false;
};

void DescribeOptions(CLI::App& app, Options& options)
{
    app.add_option("--sizes", options.sizes, "Numbers of individuals, separated by commas")
        ->delimiter(',')
        ->check(CLI::Range(100, 10'000'000));
    app.add_option("--only", options.only, "Measure only these kinds of work, separated by commas")
        ->delimiter(',')
        ->check(CLI::IsMember(NamesOfWork()));
    app.add_flag("--quick", options.quick, "Sizes 1,000 and 10,000 and few rounds: a look, not a judgement");
    app.add_option("--seconds", options.bench.secondsPerPair, "Time for the rounds of one pair, 20 if not given");
    app.add_option("--programs", options.bench.programs, "Folder of the built programs")->required();
    app.add_option("--memory", options.bench.memory, "Folder on a tmpfs to write to")->required();
    app.add_option("--disk", options.bench.disk, "Folder on a disk, for packed sites")->required();
}

/// Settles what was not asked for.
void FillIn(Options& options)
{
    if (options.sizes.empty()) {
        options.sizes = {1'000, 10'000};
        if (!options.quick) {
            options.sizes.insert(options.sizes.end(), {100'000, 1'000'000});
        }
    }
    std::sort(options.sizes.begin(), options.sizes.end());
    if (options.bench.secondsPerPair <= 0) {
        options.bench.secondsPerPair = options.quick ? 3 : 20;
    }
}

/// What is missing to measure a size; empty when nothing is.
std::string Shortage(const Bench& bench, std::uint32_t individuals)
{
    struct Need {
        std::string what;
        std::uint64_t needed;
        std::uint64_t free;
    };

    const Needs needs = NeedsOf(individuals);
    for (const Need& need :
         {Need{"in " + bench.memory, needs.memory, FreeBytes(bench.memory)},
          Need{"of memory", needs.memory, FreeMemory()}, Need{"in " + bench.disk, needs.disk, FreeBytes(bench.disk)}}) {
        if (need.needed > need.free) {
            return "needs " + std::to_string(need.needed / 1'000'000) + " MB " + need.what + ", " +
                   std::to_string(need.free / 1'000'000) + " MB are free";
        }
    }
    return {};
}

/// Whether a kind of work was asked for.
bool IsWanted(const Options& options, const std::string& name)
{
    return options.only.empty() || std::find(options.only.begin(), options.only.end(), name) != options.only.end();
}

void Measure(const Work& work, const Options& options, Table& table)
{
    std::vector<PairResult> results;
    for (const std::uint32_t individuals : options.sizes) {
        const std::string shortage = Shortage(options.bench, individuals);
        if (!shortage.empty()) {
            table.addUnmeasured(work.name, Grouped(individuals), shortage);
            continue;
        }
        std::cerr << "Measuring: " << work.name << ", " << individuals << " individuals\n";
        results.push_back(work.measure(options.bench, individuals));
    }
    table.addResults(work.name, results, work.goals);
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    CLI::App app("Measures Stemwright against the limits of the machine.", "stemwright-bench");
    DescribeOptions(app, options);
    CLI11_PARSE(app, argc, argv);
    FillIn(options);
    try {
        // The measured programs must neither see nor change the settings of whoever measures.
        const WorkFolder settings(options.bench.memory);
        setenv("XDG_CONFIG_HOME", settings.path("").c_str(), 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        Table table;
        for (const Work& work : AllWork()) {
            if (IsWanted(options, work.name)) {
                Measure(work, options, table);
            }
        }
        for (const AlbumWork& work : AllAlbumWork()) {
            if (!IsWanted(options, work.name)) {
                continue;
            }
            if (FreeBytes(options.bench.memory) < albumNeeds || FreeMemory() < albumNeeds) {
                table.addUnmeasured(work.name, "", "needs " + std::to_string(albumNeeds / 1'000'000) + " MB of memory");
                continue;
            }
            std::cerr << "Measuring: " << work.name << '\n';
            work.measure(options.bench, table);
        }
        std::cout << table.text();
        return 0;
    } catch (const std::exception& exception) {
        std::cerr << "stemwright-bench: " << exception.what() << '\n';
        return 1;
    }
}
