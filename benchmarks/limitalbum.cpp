// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "jpeg.h"
#include "photofolder.h"
#include "sqlite.h"
#include "stopwatch.h"

#include <cstdio>

/// limit_album thumbnails FOLDER: what thumbnails of the JPEG files of a folder cost at the least, which is decoding
/// them at an eighth of their size. limit_album list FILE.kvf: what showing the list of pictures costs at the least,
/// which is opening the file and reading what the list shows. Each prints when it began, on the machine's clock, the
/// seconds of the work, and a number that depends on all that was read.
namespace
{

using namespace stemwright::bench;

struct Outcome {
    double seconds = 0;
    std::uint64_t sum = 0;
};

Outcome DecodeAll(const std::string& folder)
{
    const std::vector<std::string> photos = FilesOf(folder);
    const Stopwatch watch;
    std::uint64_t sum = 0;
    for (const std::string& photo : photos) {
        sum += DecodeEighth(photo);
    }
    return {watch.seconds(), sum};
}

Outcome ReadList(const char* path)
{
    constexpr int columns = 4;
    const Stopwatch watch;
    std::vector<std::string> cells;
    const Database database = Open(path, SQLITE_OPEN_READONLY);
    const Statement select = Prepare(database, "SELECT PicId, PictureDate, Place, Title FROM AlbumTOC ORDER BY +PicId");
    while (sqlite3_step(select.get()) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            cells.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(select.get(), column)));
        }
    }
    return {watch.seconds(), cells.size()};
}

} // namespace

int main(int argc, char** argv)
{
    const double began = Now();
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() != 2 || (arguments[0] != "thumbnails" && arguments[0] != "list")) {
        std::fputs("Usage: limit_album thumbnails FOLDER | limit_album list FILE.kvf\n", stderr);
        return 2;
    }
    try {
        const Outcome done = arguments[0] == "list" ? ReadList(arguments[1].c_str()) : DecodeAll(arguments[1]);
        std::printf("%.6f %.6f %llu\n", began, done.seconds, static_cast<unsigned long long>(done.sum));
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "limit_album: %s\n", exception.what());
        return 1;
    }
}
