// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "measurements.h"

#include "stage.h"

#include <filesystem>
#include <stdexcept>

namespace stemwright::bench
{

namespace
{

namespace fs = std::filesystem;

/// A tree as it is to be published.
struct TreeToPublish {
    std::string display;
    TreeShape shape = TreeShape::Offspring;
};

/// A family file whose only setup asks for personal pages of the whole tree, with the items that a genealogist would
/// choose.
void PrepareFamilyFile(const Stage& stage, std::uint32_t individuals, const TreeToPublish& shown,
                       const std::string& file)
{
    const std::string tree = stage.inMemory("tree.ged");
    stage.writeTree(individuals, tree, shown.shape);
    stage.stemwright({"new", file});
    stage.stemwright({"import", file, tree});
    stage.stemwright({"setup", "set", file, "Default", "PersPages=1"});
    stage.stemwright({"setup", "tree", file, "Default", "add", "--head", "1", "--display", shown.display});
    for (const char* item : {"Birth", "Christening", "Marriage", "Occupation", "Residence", "Death", "Burial"}) {
        stage.stemwright({"setup", "items", file, "Default", "add", item});
    }
    fs::remove(tree);
}

PairResult MeasurePublishing(const Bench& bench, std::uint32_t individuals, const TreeToPublish& shown)
{
    const Stage stage(bench);
    const std::string pristine = stage.inMemory("pristine.kvf");
    const std::string file = stage.inMemory("tree.kvf");
    const std::string site = stage.inMemory("site");
    const std::string archive = stage.onDisk("site.pack");
    PrepareFamilyFile(stage, individuals, shown, pristine);
    std::uint64_t peakBytes = 0;
    const auto rounds = Repeat(bench, [&]() -> Round {
        // The first publication of a file is measured each time; a second one would find its work tables in place.
        fs::copy_file(pristine, file, fs::copy_options::overwrite_existing);
        const ProcessResult publishing = stage.stemwright({"publish", file, "--output", site});
        peakBytes = std::max(peakBytes, publishing.peakBytes);
        if (!fs::exists(archive)) {
            stage.run({"limit_publish", "pack", site, archive});
        }
        RemoveAndSettle(site);
        const Report limit = stage.measured({"limit_publish", "write", archive, site});
        RemoveAndSettle(site);
        const double files = limit.others.at(0);
        if (files < individuals / 2.0) {
            throw std::runtime_error("The published site holds only " + std::to_string(files) + " files");
        }
        return {publishing.seconds, limit.seconds};
    });
    return Summary(individuals, rounds, peakBytes);
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
        const Report limit = stage.measured({"limit_import", file, limitFile});
        RemoveAndSettle(file);
        RemoveAndSettle(limitFile);
        return {import.seconds, limit.seconds};
    });
    return Summary(individuals, rounds, peakBytes);
}

PairResult MeasurePublishing(const Bench& bench, std::uint32_t individuals)
{
    return MeasurePublishing(bench, individuals, {"Outline"});
}

PairResult MeasureDescendantTree(const Bench& bench, std::uint32_t individuals)
{
    return MeasurePublishing(bench, individuals, {"Descendant Tree"});
}

PairResult MeasureAncestorTree(const Bench& bench, std::uint32_t individuals)
{
    return MeasurePublishing(bench, individuals, {"Ancestor Tree", TreeShape::Pedigree});
}

} // namespace stemwright::bench
