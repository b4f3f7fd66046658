// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "stopwatch.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// limit_publish pack SITE ARCHIVE packs all files of a published site into one file. limit_publish write ARCHIVE
/// FOLDER then shows what writing a site costs at the least: it writes the same bytes to the same names below FOLDER,
/// which it creates, with one call a file, and prints when it began, on the machine's clock, the seconds of writing,
/// the files and the bytes. limit_publish copy SITE FOLDER prints the same of copying the site file by file, for sites
/// whose bytes come from another file in any case. The archive is read in large pieces while the watch is stopped, so
/// that a site of several gigabytes needs little memory.
namespace
{

namespace fs = std::filesystem;

/// As much is read at once, or one file if that is larger.
constexpr std::size_t pieceSize = 256U << 20U;

/// Stands before the name and the bytes of each file. Folders have a name that ends in a slash, and no bytes.
struct EntryHead {
    std::uint64_t dataSize;
    std::uint64_t nameSize;
};

[[noreturn]] void Fail(const std::string& what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;

File OpenFile(const std::string& path, const char* mode)
{
    File file(std::fopen(path.c_str(), mode));
    if (!file) {
        Fail(path);
    }
    return file;
}

void Append(const File& archive, std::string_view bytes)
{
    if (std::fwrite(bytes.data(), 1, bytes.size(), archive.get()) != bytes.size()) {
        Fail("archive");
    }
}

void AppendEntry(const File& archive, const std::string& name, std::string_view data)
{
    const EntryHead head{data.size(), name.size()};
    Append(archive, {reinterpret_cast<const char*>(&head), sizeof head});
    Append(archive, name);
    Append(archive, data);
}

void Pack(const std::string& site, const std::string& archivePath)
{
    const File archive = OpenFile(archivePath, "wb");
    std::string data;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(site)) {
        const std::string name = entry.path().lexically_relative(site).string();
        if (entry.is_directory()) {
            AppendEntry(archive, name + '/', {});
            continue;
        }
        data.resize(entry.file_size());
        const File file = OpenFile(entry.path().string(), "rb");
        if (std::fread(data.data(), 1, data.size(), file.get()) != data.size()) {
            Fail(name);
        }
        AppendEntry(archive, name, data);
    }
    if (std::fflush(archive.get()) != 0) {
        Fail("archive");
    }
}

/// Gives the archive in pieces of whole entries.
class ArchiveReader
{
public:
    explicit ArchiveReader(const std::string& path) : m_file(OpenFile(path, "rb")) {}

    /// The next entries; empty at the end. Valid until the next call.
    std::string_view next()
    {
        m_buffer.erase(0, m_whole);
        fill(pieceSize);
        m_whole = wholeEntries();
        while (m_whole == 0 && !m_ended) {
            fill(m_buffer.size() * 2);
            m_whole = wholeEntries();
        }
        return {m_buffer.data(), m_whole};
    }

private:
    void fill(std::size_t size)
    {
        const std::size_t kept = m_buffer.size();
        if (m_ended || size <= kept) {
            return;
        }
        m_buffer.resize(size);
        const std::size_t got = std::fread(m_buffer.data() + kept, 1, size - kept, m_file.get());
        m_ended = got < size - kept;
        m_buffer.resize(kept + got);
    }

    std::size_t wholeEntries() const
    {
        std::size_t end = 0;
        EntryHead head{};
        while (end + sizeof head <= m_buffer.size()) {
            std::memcpy(&head, m_buffer.data() + end, sizeof head);
            const std::size_t next = end + sizeof head + head.nameSize + head.dataSize;
            if (next > m_buffer.size()) {
                break;
            }
            end = next;
        }
        return end;
    }

    File m_file;
    std::string m_buffer;
    std::size_t m_whole = 0;
    bool m_ended = false;
};

struct Written {
    double seconds = 0;
    std::uint64_t files = 0;
    std::uint64_t bytes = 0;
};

void WriteFile(int folder, const char* name, std::string_view data)
{
    const int file = openat(folder, name, O_WRONLY | O_CREAT | O_EXCL, 0644);
    if (file < 0) {
        Fail(name);
    }
    while (!data.empty()) {
        const ssize_t written = write(file, data.data(), data.size());
        if (written < 0) {
            Fail(name);
        }
        data.remove_prefix(static_cast<std::size_t>(written));
    }
    close(file);
}

void WriteEntries(int folder, std::string_view entries, Written& written)
{
    const stemwright::bench::Stopwatch watch;
    std::string name;
    while (!entries.empty()) {
        EntryHead head{};
        std::memcpy(&head, entries.data(), sizeof head);
        entries.remove_prefix(sizeof head);
        name = entries.substr(0, head.nameSize);
        entries.remove_prefix(head.nameSize);
        if (name.back() == '/') {
            mkdirat(folder, name.c_str(), 0755);
        } else {
            WriteFile(folder, name.c_str(), entries.substr(0, head.dataSize));
            ++written.files;
            written.bytes += head.dataSize;
        }
        entries.remove_prefix(head.dataSize);
    }
    written.seconds += watch.seconds();
}

Written WriteSite(const std::string& archivePath, const std::string& path)
{
    if (mkdir(path.c_str(), 0755) != 0) {
        Fail(path);
    }
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY);
    if (folder < 0) {
        Fail(path);
    }
    ArchiveReader archive(archivePath);
    Written written;
    for (std::string_view entries = archive.next(); !entries.empty(); entries = archive.next()) {
        WriteEntries(folder, entries, written);
    }
    close(folder);
    return written;
}

/// One file of the site, with as few calls as its size allows.
void CopyFile(int source, int target, const char* name, std::vector<char>& buffer, Written& written)
{
    const int from = openat(source, name, O_RDONLY);
    const int to = openat(target, name, O_WRONLY | O_CREAT | O_EXCL, 0644);
    if (from < 0 || to < 0) {
        Fail(name);
    }
    ssize_t got = 0;
    while ((got = read(from, buffer.data(), buffer.size())) > 0) {
        if (write(to, buffer.data(), static_cast<std::size_t>(got)) != got) {
            Fail(name);
        }
        written.bytes += static_cast<std::uint64_t>(got);
    }
    if (got < 0) {
        Fail(name);
    }
    close(from);
    close(to);
    ++written.files;
}

Written CopySite(const std::string& site, const std::string& path)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(site)) {
        const std::string name = entry.path().lexically_relative(site).string();
        names.push_back(entry.is_directory() ? name + '/' : name);
    }
    const int source = open(site.c_str(), O_RDONLY | O_DIRECTORY);
    if (source < 0 || mkdir(path.c_str(), 0755) != 0) {
        Fail(path);
    }
    const int target = open(path.c_str(), O_RDONLY | O_DIRECTORY);
    constexpr std::size_t bufferSize = 1U << 20U;
    std::vector<char> buffer(bufferSize);
    Written written;
    const stemwright::bench::Stopwatch watch;
    for (const std::string& name : names) {
        if (name.back() == '/') {
            mkdirat(target, name.c_str(), 0755);
        } else {
            CopyFile(source, target, name.c_str(), buffer, written);
        }
    }
    written.seconds = watch.seconds();
    close(source);
    close(target);
    return written;
}

} // namespace

int main(int argc, char** argv)
{
    const double began = stemwright::bench::Now();
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() != 3 || (arguments[0] != "pack" && arguments[0] != "write" && arguments[0] != "copy")) {
        std::fputs("Usage: limit_publish pack SITE ARCHIVE | write ARCHIVE FOLDER | copy SITE FOLDER\n", stderr);
        return 2;
    }
    try {
        if (arguments[0] == "pack") {
            Pack(arguments[1], arguments[2]);
        } else {
            const Written written =
                arguments[0] == "copy" ? CopySite(arguments[1], arguments[2]) : WriteSite(arguments[1], arguments[2]);
            std::printf("%.6f %.6f %llu %llu\n", began, written.seconds, static_cast<unsigned long long>(written.files),
                        static_cast<unsigned long long>(written.bytes));
        }
        return 0;
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "limit_publish: %s\n", exception.what());
        return 1;
    }
}
