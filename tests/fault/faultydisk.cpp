// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT

// A faulty disk for whatever program is started with this library in LD_PRELOAD. It needs no right that a test may
// lack, and each fault comes at an exact byte. The environment says what happens to files below the folder
// FAULTY_DISK_FOLDER:
//   FAULTY_DISK=full        files stop growing, with ENOSPC, once they grew by FAULTY_DISK_AFTER bytes in all
//   FAULTY_DISK=broken      writing and flushing fail with EIO once FAULTY_DISK_AFTER bytes were written, as on a stick
//                           that was pulled out
//   FAULTY_DISK=unreadable  reading fails with EIO once FAULTY_DISK_AFTER bytes were read
//   FAULTY_DISK=readonly    whatever would change something fails with EROFS
// With any of them or none, FAULTY_DISK_LOG names a file that gets a line for each file which is flushed to the disk
// ("flush PATH") or renamed ("rename FROM TO").

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace
{

enum class Fault { None, Full, Broken, Unreadable, ReadOnly };

struct Disk {
    Fault fault = Fault::None;
    std::string folder;
    std::atomic<long long> left = 0;
};

Fault FaultNamed(const char* name)
{
    const std::string_view text = name != nullptr ? name : "";
    return text == "full"         ? Fault::Full
           : text == "broken"     ? Fault::Broken
           : text == "unreadable" ? Fault::Unreadable
           : text == "readonly"   ? Fault::ReadOnly
                                  : Fault::None;
}

Disk& TheDisk()
{
    static Disk disk{FaultNamed(std::getenv("FAULTY_DISK")), std::getenv("FAULTY_DISK_FOLDER"),
                     std::atoll(std::getenv("FAULTY_DISK_AFTER"))};
    return disk;
}

bool IsOnDisk(const char* path)
{
    return std::string_view(path).starts_with(TheDisk().folder);
}

std::string PathOf(int descriptor)
{
    char target[4096] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    return ::readlink(link.c_str(), target, sizeof target - 1) > 0 ? target : "";
}

bool IsOnDisk(int descriptor)
{
    return IsOnDisk(PathOf(descriptor).c_str());
}

/// How many of `count` bytes the disk still takes or gives; sets errno when it is none at all.
size_t Allowed(Fault fault, int error, int descriptor, size_t count)
{
    Disk& disk = TheDisk();
    if (disk.fault != fault || count == 0 || !IsOnDisk(descriptor)) {
        return count;
    }
    const long long wanted = static_cast<long long>(count);
    const long long given = std::clamp(disk.left.fetch_sub(wanted), 0LL, wanted);
    if (given == 0) {
        errno = error;
    }
    return static_cast<size_t>(given);
}

/// The function that stands behind the one of this library.
template <typename Function>
Function* Real(Function*, const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

// Each name is that of the function which it stands before.
#define REAL(name) Real(&name, #name)

void Note(const std::string& line)
{
    if (const char* log = std::getenv("FAULTY_DISK_LOG")) {
        const int file = REAL(open)(log, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
        [[maybe_unused]] const ssize_t written = REAL(write)(file, (line + '\n').c_str(), line.size() + 1);
        ::close(file);
    }
}

/// A full disk still takes what is written over bytes that a file has already.
size_t Writable(int descriptor, size_t count, off64_t offset)
{
    struct stat64 file {
    };

    if (TheDisk().fault == Fault::Broken) {
        return Allowed(Fault::Broken, EIO, descriptor, count);
    }
    if (TheDisk().fault != Fault::Full || ::fstat64(descriptor, &file) != 0) {
        return count;
    }
    const size_t existing =
        static_cast<size_t>(std::clamp<off64_t>(file.st_size - offset, 0, static_cast<off64_t>(count)));
    return existing + Allowed(Fault::Full, ENOSPC, descriptor, count - existing);
}

/// The same for writing where the descriptor stands.
size_t Writable(int descriptor, size_t count)
{
    return Writable(descriptor, count, ::lseek64(descriptor, 0, SEEK_CUR));
}

size_t Readable(int descriptor, size_t count)
{
    return Allowed(Fault::Unreadable, EIO, descriptor, count);
}

/// Whether the path may not be changed; sets errno then.
bool IsRefused(const char* path)
{
    const bool refused = TheDisk().fault == Fault::ReadOnly && IsOnDisk(path);
    if (refused) {
        errno = EROFS;
    }
    return refused;
}

bool Changes(int flags)
{
    return (flags & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0;
}

/// What flushing with `flush` comes to.
int Flushed(int descriptor, int (*flush)(int))
{
    const bool onDisk = IsOnDisk(descriptor);
    if (onDisk) {
        Note("flush " + PathOf(descriptor));
    }
    if (onDisk && TheDisk().fault == Fault::Broken && TheDisk().left <= 0) {
        errno = EIO;
        return -1;
    }
    return flush(descriptor);
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return Changes(flags) && IsRefused(path) ? -1 : REAL(open)(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    const std::string full = *path == '/' || folder == AT_FDCWD ? path : PathOf(folder) + '/' + path;
    return Changes(flags) && IsRefused(full.c_str()) ? -1 : REAL(openat)(folder, path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return Changes(flags) && IsRefused(path) ? -1 : REAL(open64)(path, flags, mode);
}

int access(const char* path, int mode)
{
    return (mode & W_OK) != 0 && IsRefused(path) ? -1 : REAL(access)(path, mode);
}

int mkdir(const char* path, mode_t mode)
{
    return IsRefused(path) ? -1 : REAL(mkdir)(path, mode);
}

int unlink(const char* path)
{
    return IsRefused(path) ? -1 : REAL(unlink)(path);
}

int rename(const char* from, const char* to)
{
    if (IsOnDisk(to)) {
        Note(std::string("rename ") + from + ' ' + to);
    }
    return IsRefused(from) || IsRefused(to) ? -1 : REAL(rename)(from, to);
}

int fsync(int descriptor)
{
    return Flushed(descriptor, REAL(fsync));
}

int fdatasync(int descriptor)
{
    return Flushed(descriptor, REAL(fdatasync));
}

ssize_t write(int descriptor, const void* bytes, size_t count)
{
    const size_t allowed = Writable(descriptor, count);
    return allowed == 0 && count > 0 ? -1 : REAL(write)(descriptor, bytes, allowed);
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset)
{
    const size_t allowed = Writable(descriptor, count, offset);
    return allowed == 0 && count > 0 ? -1 : REAL(pwrite64)(descriptor, bytes, allowed, offset);
}

ssize_t sendfile64(int out, int in, off64_t* offset, size_t count)
{
    const size_t allowed = Writable(out, count);
    return allowed == 0 && count > 0 ? -1 : REAL(sendfile64)(out, in, offset, allowed);
}

ssize_t read(int descriptor, void* bytes, size_t count)
{
    const size_t allowed = Readable(descriptor, count);
    return allowed == 0 && count > 0 ? -1 : REAL(read)(descriptor, bytes, allowed);
}
}
