// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"

#include "base/error.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace stemwright
{

namespace
{

QString ReasonOf(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

/// A file descriptor that is closed when it goes out of scope; an error of closing is seen only through close().
class Descriptor
{
public:
    Descriptor(const QString& path, int flags, mode_t permissions = 0666)
        : m_descriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, permissions))
    {
    }

    /// A file in a folder that is open.
    Descriptor(int folder, const std::string& name, int flags)
        : m_descriptor(::openat(folder, name.c_str(), flags | O_CLOEXEC, 0666))
    {
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    ~Descriptor() { close(); }

    bool isOpen() const { return m_descriptor >= 0; }

    int number() const { return m_descriptor; }

    bool close() { return m_descriptor < 0 || ::close(std::exchange(m_descriptor, -1)) == 0; }

private:
    int m_descriptor;
};

bool WriteAll(Descriptor& descriptor, const QByteArray& content)
{
    const char* position = content.constData();
    qsizetype left = content.size();
    while (left > 0) {
        const ssize_t written = ::write(descriptor.number(), position, static_cast<size_t>(left));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        const ssize_t done = std::max<ssize_t>(written, 0);
        position += done;
        left -= done;
    }
    return true;
}

/// Flushes a file to the disk. A full network disk may say so only here.
void SynchroniseFile(const QString& path)
{
    Descriptor descriptor(path, O_RDONLY);
    if (!descriptor.isOpen() || ::fsync(descriptor.number()) != 0 || !descriptor.close()) {
        FailToWrite(path, ReasonOf(errno));
    }
}

/// Flushes a folder's list of names. Some file systems cannot do that, which is no reason to stop: the file itself is
/// safe under one of its two names.
void SynchroniseFolder(const QString& path)
{
    const Descriptor descriptor(path, O_RDONLY);
    if (descriptor.isOpen()) {
        ::fsync(descriptor.number());
    }
}

bool IsRunning(int process)
{
    return process > 0 && (::kill(process, 0) == 0 || errno == EPERM);
}

std::optional<unsigned> PermissionsOf(const QString& path)
{
    struct stat file {
    };

    return ::stat(QFile::encodeName(path).constData(), &file) == 0 ? std::optional<unsigned>(file.st_mode & 0777)
                                                                   : std::nullopt;
}

/// The permissions that both files have, of those that there are.
std::optional<unsigned> CommonPermissions(const QString& first, const QString& second)
{
    const std::optional<unsigned> left = PermissionsOf(first);
    const std::optional<unsigned> right = PermissionsOf(second);
    return left && right ? *left & *right : left ? left : right;
}

/// What the names of unfinished files begin with: the name of the file that is made, where that leaves room for more.
QString BeginningOfUnfinished(const QFileInfo& target)
{
    constexpr qsizetype longestName = 150;
    const QByteArray name = QFile::encodeName(target.fileName());
    return name.size() <= longestName
               ? target.fileName()
               : QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex());
}

/// Writes the content to the file that was opened for it, which `path` tells the path of when it is asked; a file that
/// could not be written whole is removed.
template <typename PathOf>
void WriteOut(Descriptor descriptor, const QByteArray& content, const PathOf& path)
{
    if (!descriptor.isOpen()) {
        FailToWrite(path(), ReasonOf(errno));
    }
    if (!WriteAll(descriptor, content) || !descriptor.close()) {
        const int error = errno;
        DiscardFile(path());
        FailToWrite(path(), ReasonOf(error));
    }
}

} // namespace

bool CreateFolderPath(const QString& path)
{
    return QDir().mkpath(path);
}

QByteArray ReadWholeFile(const QString& path)
{
    // Opening a pipe waits for its other end unless it is told not to.
    const Descriptor descriptor(path, O_RDONLY | O_NONBLOCK);

    struct stat file {
    };

    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &file) != 0) {
        FailToRead(path, ReasonOf(errno));
    }
    if (!S_ISREG(file.st_mode)) {
        FailToRead(path, QStringLiteral("it is not a file but a folder, pipe or device"));
    }
    // One byte more than it should be, so that one look shows the end.
    QByteArray content(static_cast<qsizetype>(file.st_size) + 1, Qt::Uninitialized);
    qsizetype done = 0;
    while (const ssize_t length =
               ::read(descriptor.number(), content.data() + done, static_cast<size_t>(content.size() - done))) {
        if (length < 0 && errno != EINTR) {
            FailToRead(path, ReasonOf(errno));
        }
        done += std::max<ssize_t>(length, 0);
        if (done == content.size()) {
            content.resize(2 * done);
        }
    }
    content.truncate(done);
    return content;
}

void WriteWholeFile(const QString& path, const QByteArray& content)
{
    WriteOut(Descriptor(path, O_WRONLY | O_CREAT | O_TRUNC), content, [&path] { return path; });
}

void AppendToFile(const QString& path, const QByteArray& content)
{
    WriteOut(Descriptor(path, O_WRONLY | O_APPEND), content, [&path] { return path; });
}

OpenFolder::OpenFolder(const QString& path)
    : m_path(path), m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_descriptor < 0) {
        FailToRead(path, ReasonOf(errno));
    }
}

OpenFolder::~OpenFolder()
{
    ::close(m_descriptor);
}

void OpenFolder::writeWholeFile(const std::string& name, const QByteArray& content) const
{
    writeOut(name, O_CREAT | O_TRUNC, content);
}

void OpenFolder::appendToFile(const std::string& name, const QByteArray& content) const
{
    writeOut(name, O_APPEND, content);
}

void OpenFolder::writeOut(const std::string& name, int flags, const QByteArray& content) const
{
    WriteOut(Descriptor(m_descriptor, name, O_WRONLY | flags), content,
             [this, &name] { return m_path + u'/' + QString::fromStdString(name); });
}

void FailToRead(const QString& path, const QString& reason)
{
    throw Error(QStringLiteral("Cannot read file %1: %2.").arg(QDir::toNativeSeparators(path), reason));
}

void FailToWrite(const QString& path, const QString& reason)
{
    throw Error(QStringLiteral("Cannot write file %1: %2.").arg(QDir::toNativeSeparators(path), reason));
}

void DiscardFile(const QString& path)
{
    if (QFileInfo(path).isFile()) {
        QFile::remove(path);
    }
}

void ReplaceFile(const QString& from, const QString& to)
{
    SynchroniseFile(from);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        throw Error(QStringLiteral("Cannot put the new file in the place of %1: %2.")
                        .arg(QDir::toNativeSeparators(to), ReasonOf(errno)));
    }
    SynchroniseFolder(QFileInfo(to).absolutePath());
}

QString FileItself(const QString& path)
{
    // As many links as the system follows; where they lead in a circle, no file will be found.
    constexpr int mostLinks = 40;
    QFileInfo place(path);
    for (int links = 0; links < mostLinks && place.isSymLink(); ++links) {
        place.setFile(place.symLinkTarget());
    }
    return place.absoluteFilePath();
}

void RemoveLeftovers(const QDir& folder, const QString& name)
{
    const QRegularExpression unfinished(u'^' + name + QStringLiteral("\\.(\\d+)\\.unfinished"));
    for (const QString& file : folder.entryList(QDir::Files | QDir::Hidden)) {
        const QRegularExpressionMatch match = unfinished.match(file);
        if (match.hasMatch() && !IsRunning(match.captured(1).toInt())) {
            QFile::remove(folder.filePath(file));
        }
    }
}

bool IsSameFile(const QString& first, const QString& second)
{
    struct stat left {
    };

    struct stat right {
    };

    return ::stat(QFile::encodeName(first).constData(), &left) == 0 &&
           ::stat(QFile::encodeName(second).constData(), &right) == 0 && left.st_dev == right.st_dev &&
           left.st_ino == right.st_ino;
}

UnfinishedFile::UnfinishedFile(const QString& target, const QString& source)
    : m_target(FileItself(target)), m_permissions(CommonPermissions(m_target, source))
{
    const QFileInfo place(m_target);
    m_path = place.absoluteDir().filePath(
        QStringLiteral("%1.%2.unfinished").arg(BeginningOfUnfinished(place)).arg(::getpid()));
    RemoveLeftovers(place.absoluteDir(), QRegularExpression::escape(BeginningOfUnfinished(place)));
    QFile::remove(m_path);
    const Descriptor made(m_path, O_WRONLY | O_CREAT | O_EXCL, m_permissions ? 0600 : 0666);
    if (!made.isOpen()) {
        FailToWrite(m_path, ReasonOf(errno));
    }
}

UnfinishedFile::~UnfinishedFile()
{
    QFile::remove(m_path);
}

void UnfinishedFile::putInPlace()
{
    if (m_permissions && ::chmod(QFile::encodeName(m_path).constData(), *m_permissions) != 0) {
        FailToWrite(m_path, ReasonOf(errno));
    }
    ReplaceFile(m_path, m_target);
}

} // namespace stemwright
