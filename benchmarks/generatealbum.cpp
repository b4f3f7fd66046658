// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "jpeg.h"
#include "sqlite.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <vector>

/// stemwright-generate-album photos FOLDER COUNT writes JPEG files of 12 megapixels. stemwright-generate-album pictures
/// FILE.kvf COUNT BYTES puts pictures of that many bytes each, with thumbnails and two marks, straight into a family
/// file, since the album itself would neither take large ones nor be quick about many. The same numbers give the same
/// bytes on every machine.
namespace
{

using namespace stemwright::bench;

void WritePhotos(const std::string& folder, int count)
{
    constexpr int width = 4000;
    constexpr int height = 3000;
    constexpr int grain = 12;
    for (int number = 0; number < count; ++number) {
        const std::string photo = DrawJpeg(width, height, grain, static_cast<std::uint64_t>(number));
        std::ofstream file(folder + "/photo" + std::to_string(number) + ".jpg", std::ios::binary);
        if (!file.write(photo.data(), static_cast<std::streamsize>(photo.size())).flush()) {
            throw std::runtime_error(folder + " cannot be written");
        }
    }
}

/// The picture with comments after its first marker, so that it has `size` bytes; at least its own.
std::string Padded(const std::string& jpeg, std::size_t size)
{
    constexpr std::size_t firstMarker = 2;
    constexpr std::size_t longest = 65'000;
    constexpr std::size_t head = 4;
    std::string padded = jpeg.substr(0, firstMarker);
    for (std::size_t missing = size > jpeg.size() ? size - jpeg.size() : 0; missing > head;) {
        const std::size_t part = std::min(missing, longest);
        const std::size_t length = part - 2;
        padded += "\xFF\xFE";
        padded += static_cast<char>(length >> 8U);
        padded += static_cast<char>(length & 0xFFU);
        padded.append(part - head, 'x');
        missing -= part;
    }
    return padded + jpeg.substr(firstMarker);
}

/// A Windows bitmap of 80 x 60 pixels in one colour.
std::string Thumbnail(char colour)
{
    constexpr std::array<unsigned char, 54> head = {'B', 'M', 0x76, 0x38, 0, 0, 0, 0,  0, 0, 54, 0, 0, 0, 40,
                                                    0,   0,   0,    80,   0, 0, 0, 60, 0, 0, 0,  1, 0, 24};
    std::string bitmap(head.begin(), head.end());
    return bitmap.append(80 * 60 * 3, colour);
}

void Bind(const Statement& statement, int parameter, const std::string& text)
{
    sqlite3_bind_text(statement.get(), parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

void BindBytes(const Statement& statement, int parameter, const std::string& bytes)
{
    sqlite3_bind_blob64(statement.get(), parameter, bytes.data(), bytes.size(), SQLITE_STATIC);
}

void Run(const Database& database, const Statement& statement)
{
    if (sqlite3_step(statement.get()) != SQLITE_DONE) {
        Fail(database.get());
    }
    sqlite3_reset(statement.get());
}

int CountIndividuals(const Database& database)
{
    const Statement count = Prepare(database, "SELECT count(*) FROM Indi");
    sqlite3_step(count.get());
    return sqlite3_column_int(count.get(), 0);
}

void FillAlbum(const char* path, int count, std::size_t bytes)
{
    constexpr int kinds = 8;
    std::vector<std::string> pictures;
    for (int kind = 0; kind < kinds; ++kind) {
        pictures.push_back(Padded(DrawJpeg(640, 480, 0, static_cast<std::uint64_t>(kind)), bytes));
    }
    const Database database = Open(path, SQLITE_OPEN_READWRITE);
    const int individuals = std::max(1, CountIndividuals(database));
    const Statement picture = Prepare(
        database, "INSERT INTO AlbumTOC (PicId, PictureDate, EncodPicDate, Place, Title, ModificationDate, NamesLeft,"
                  " PicType, PicFilename, Picture, Rectangle, Thumb, PicWidth, PicHeight) VALUES (?1, ?2, ?3, ?4, ?5,"
                  " '2026-03-12T12:00:00', 0, 'jpg', ?6, ?7, -1, ?8, 640, 480)");
    const Statement mark = Prepare(database, "INSERT INTO Pic2Person (PicId, PersId, X, Y, Width, Height, Name)"
                                             " VALUES (?1, ?2, ?3, '50', '100', '120', ?4)");
    Execute(database, "BEGIN");
    for (int number = 1; number <= count; ++number) {
        const std::string year = std::to_string(1900 + number % 100);
        const std::string date = "12 Mar " + year;
        const std::string encoded = year + "03120";
        const std::string place = "Village " + std::to_string(number % 300);
        const std::string title = "Family gathering, picture " + std::to_string(number);
        const std::string file = "picture" + std::to_string(number);
        const std::string thumbnail = Thumbnail(static_cast<char>(number % 100));
        sqlite3_bind_int(picture.get(), 1, number);
        int parameter = 2;
        for (const std::string* text : {&date, &encoded, &place, &title, &file}) {
            Bind(picture, parameter++, *text);
        }
        BindBytes(picture, 7, pictures[static_cast<std::size_t>(number % kinds)]);
        BindBytes(picture, 8, thumbnail);
        Run(database, picture);
        for (int person = 1; person <= 2; ++person) {
            const std::string name = "Person " + std::to_string(person);
            const std::string x = std::to_string(100 * person);
            sqlite3_bind_int(mark.get(), 1, number);
            sqlite3_bind_int(mark.get(), 2, 1 + (number * 2 + person) % individuals);
            Bind(mark, 3, x);
            Bind(mark, 4, name);
            Run(database, mark);
        }
    }
    Execute(database, "COMMIT");
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    try {
        if (arguments.size() == 3 && arguments[0] == "photos") {
            WritePhotos(arguments[1], std::stoi(arguments[2]));
        } else if (arguments.size() == 4 && arguments[0] == "pictures") {
            FillAlbum(arguments[1].c_str(), std::stoi(arguments[2]), std::stoul(arguments[3]));
        } else {
            std::fputs("Usage: stemwright-generate-album photos FOLDER COUNT | pictures FILE.kvf COUNT BYTES\n",
                       stderr);
            return 2;
        }
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "stemwright-generate-album: %s\n", exception.what());
        return 1;
    }
}
