// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/files.h"

#include "base/error.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace stemwright
{

namespace
{

[[noreturn]] void Fail(const QString& text, const QString& path, const QString& reason)
{
    throw Error(text.arg(QDir::toNativeSeparators(path), reason));
}

QString SystemReason(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

/// Flushes a file or folder to the disk; folders are opened for that as POSIX allows.
void Synchronise(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

} // namespace

bool CreateFolderPath(const QString& path)
{
    return QDir().mkpath(path);
}

QByteArray ReadWholeFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Fail(QStringLiteral("Cannot read file %1: %2."), path, file.errorString());
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        Fail(QStringLiteral("Cannot read file %1: %2."), path, file.errorString());
    }
    return content;
}

void WriteWholeFile(const QString& path, const QByteArray& content)
{
    const QByteArray name = QFile::encodeName(path);
    const int descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        Fail(QStringLiteral("Cannot write file %1: %2."), path, SystemReason(errno));
    }
    const char* position = content.constData();
    qsizetype left = content.size();
    while (left > 0) {
        const ssize_t written = ::write(descriptor, position, static_cast<size_t>(left));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            const int error = errno;
            ::close(descriptor);
            ::unlink(name.constData());
            Fail(QStringLiteral("Cannot write file %1: %2."), path, SystemReason(error));
        }
        position += written;
        left -= written;
    }
    ::close(descriptor);
}

void ReplaceFile(const QString& from, const QString& to)
{
    Synchronise(from);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        Fail(QStringLiteral("Cannot put the new file in the place of %1: %2."), to, SystemReason(errno));
    }
    Synchronise(QFileInfo(to).path());
}

QString UnfinishedName(const QString& path)
{
    return path + QStringLiteral(".unfinished");
}

} // namespace stemwright
