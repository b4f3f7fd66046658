// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "albummeasurements.h"

#include <filesystem>
#include <stdexcept>

namespace stemwright::bench
{

namespace
{

namespace fs = std::filesystem;

/// A family file with the generated tree and album.
std::string MakeFamilyFile(const Stage& stage, const std::string& name, std::uint32_t individuals, int pictures,
                           int pictureBytes)
{
    std::string file = stage.inMemory(name);
    const std::string tree = stage.inMemory("tree.ged");
    stage.stemwright({"new", file});
    if (individuals > 0) {
        stage.writeTree(individuals, tree);
        stage.stemwright({"import", file, tree});
        fs::remove(tree);
    }
    if (pictures > 0) {
        stage.run(
            {"stemwright-generate-album", "pictures", file, std::to_string(pictures), std::to_string(pictureBytes)});
    }
    return file;
}

/// Two works that watch themselves, one after the other in each round.
PairResult MeasurePair(const Bench& bench, const Stage& stage, const std::vector<std::string>& ours,
                       const std::vector<std::string>& limit)
{
    const auto rounds = Repeat(bench, [&]() -> Round {
        return {stage.measured(ours).workSeconds, stage.measured(limit).workSeconds};
    });
    return Summary(0, rounds, 0);
}

} // namespace

void MeasureOldAlbum(const Bench& bench, Table& table)
{
    const Stage stage(bench);
    const std::string album = stage.inMemory("old.mdb");
    const std::string file = stage.inMemory("album.kvf");
    const std::string limitFile = stage.inMemory("limit.kvf");
    stage.run({"stemwright-generate-oldalbum", album, "3000", "20000"});
    const auto rounds = Repeat(bench, [&]() -> Round {
        stage.stemwright({"new", file});
        const double ours = stage.stemwright({"import-album", file, album}).seconds;
        const double reading = stage.measured({"limit_oldalbum", album}).workSeconds;
        const double writing =
            stage.measured({"limit_import", file, limitFile, "AlbumTOC", "PreV2Indi", "PreV2Pic2Person"}).seconds;
        RemoveAndSettle(file);
        RemoveAndSettle(limitFile);
        return {ours, reading + writing};
    });
    table.addPair("import of an old album", "3,000", Summary(0, rounds, 0), 3.0);
}

void MeasureThumbnails(const Bench& bench, Table& table)
{
    const Stage stage(bench);
    const std::string photos = stage.inMemory("photos");
    fs::create_directory(photos);
    stage.run({"stemwright-generate-album", "photos", photos, "8"});
    table.addPair(
        "thumbnails of 12 megapixels", "8",
        MeasurePair(bench, stage, {"measure_album", "thumbnails", photos}, {"limit_album", "thumbnails", photos}), 1.3);
}

void MeasureNames(const Bench& bench, Table& table)
{
    constexpr double slowest = 0.010;
    const Stage stage(bench);
    const std::string file = MakeFamilyFile(stage, "names.kvf", 100'000, 0, 0);
    double percentile99 = 0;
    const auto rounds = Repeat(bench, [&]() -> Round {
        const Report typed = stage.measured({"measure_album", "names", file});
        percentile99 = std::max(percentile99, typed.others.at(1));
        return {typed.workSeconds, typed.others.at(0)};
    });
    table.addPair("keystroke of the name search", "100,000", Summary(0, rounds, 0), 1.0);
    table.addTime("keystroke, 99 of 100 within", "100,000", percentile99, slowest);
}

void MeasureOpening(const Bench& bench, Table& table)
{
    const Stage stage(bench);
    const std::string file = MakeFamilyFile(stage, "open.kvf", 100'000, 20'000, 10'000);
    table.addPair("opening to the list of pictures", "20,000",
                  MeasurePair(bench, stage, {"measure_album", "list", file}, {"limit_album", "list", file}), 2.0);
}

void MeasureWindows(const Bench& bench, Table& table)
{
    constexpr double slowest = 0.050;
    const Stage stage(bench);
    const std::string file = MakeFamilyFile(stage, "windows.kvf", 100'000, 20'000, 50'000);
    const auto rounds = Repeat(bench, [&]() -> Round {
        return {stage.measured({"measure_windows", "start", file}).seconds,
                stage.measured({"limit_windows", file}).seconds};
    });
    table.addPair("start to the usable window", "20,000", Summary(0, rounds, 0), 1.5);
    for (const auto& [work, figure] :
         {std::pair{"picker", "keystroke in the person picker, 99 of 100"},
          std::pair{"next", "next picture, 99 of 100"}, std::pair{"sort", "sorting by a column, 99 of 100"}}) {
        table.addTime(figure, "20,000", stage.measured({"measure_windows", work, file}).workSeconds, slowest);
    }
}

void MeasureProgress(const Bench& bench, Table& table)
{
    const Stage stage(bench);
    const std::string file = MakeFamilyFile(stage, "progress.kvf", 100'000, 0, 0);
    const std::string site = stage.inMemory("site");
    stage.stemwright({"setup", "set", file, "Default", "PersPages=1"});
    stage.stemwright({"setup", "tree", file, "Default", "add", "--head", "1"});
    const auto built = [&](const char* progress) {
        const double seconds = stage.measured({"measure_progress", progress, file, site}).workSeconds;
        RemoveAndSettle(site);
        return seconds;
    };
    // The first build makes the work tables.
    built("none");
    const auto rounds = Repeat(bench, [&]() -> Round { return {built("window"), built("none")}; });
    table.addPair("publishing with its progress window", "100,000", Summary(0, rounds, 0), 1.05);
}

void MeasureLargePictures(const Bench& bench, Table& table)
{
    constexpr int pictures = 1'000;
    const Stage stage(bench);
    const std::string large = MakeFamilyFile(stage, "large.kvf", 0, pictures, 1'000'000);
    const std::string small = MakeFamilyFile(stage, "small.kvf", 0, pictures, 10'000);
    for (const auto& [work, figure] :
         {std::pair{"list", "list, pictures of 1 MB to 10 KB"}, std::pair{"gallery", "gallery, 1 MB to 10 KB"}}) {
        table.addPair(figure, "1,000",
                      MeasurePair(bench, stage, {"measure_album", work, large}, {"measure_album", work, small}), 1.5);
    }
}

void MeasurePublishedAlbum(const Bench& bench, Table& table)
{
    constexpr int pictures = 20'000;
    const Stage stage(bench);
    const std::string file = MakeFamilyFile(stage, "album.kvf", 1'000, pictures, 50'000);
    const std::string site = stage.inMemory("site");
    const std::string copy = stage.inMemory("copy");
    const auto rounds = Repeat(bench, [&]() -> Round {
        const ProcessResult publishing = stage.stemwright({"publish", file, "--head", "1", "--output", site});
        const Report limit = stage.measured({"limit_publish", "copy", site, copy});
        RemoveAndSettle(copy);
        RemoveAndSettle(site);
        if (limit.others.at(0) < pictures) {
            throw std::runtime_error("The published site does not hold the pictures");
        }
        return {publishing.seconds, limit.seconds};
    });
    table.addPair("publishing pictures", "20,000", Summary(0, rounds, 0), 1.5);
}

} // namespace stemwright::bench
