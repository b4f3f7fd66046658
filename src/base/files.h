// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QString>

#include <optional>
#include <string>

/// Files as wholes: reading, writing, and putting a finished file in its place in one step. Failures come as Error with
/// the path and the system's reason. Stands on nothing but the error type.
namespace stemwright
{

/// Creates every missing folder along a path, upper folders first. False when one cannot be created.
bool CreateFolderPath(const QString& path);

/// The whole content of a file. Throws Error with the path and the system's reason, also for what is no plain file: a
/// pipe may never begin, and a device never end.
QByteArray ReadWholeFile(const QString& path);

/// Creates or overwrites a file with one write. Throws Error with the path and the system's reason (full disk,
/// read-only folder); what was written so far is then removed.
void WriteWholeFile(const QString& path, const QByteArray& content);

/// Appends to a file that WriteWholeFile() has begun; fails in the same way.
void AppendToFile(const QString& path, const QByteArray& content);

/// A folder that stays open while many files are written into it, none of which has its path looked up anew.
class OpenFolder
{
public:
    /// Throws Error when the folder cannot be opened.
    explicit OpenFolder(const QString& path);

    OpenFolder(const OpenFolder&) = delete;
    OpenFolder& operator=(const OpenFolder&) = delete;

    ~OpenFolder();

    /// As the procedures above, for a file of the folder by its name (UTF-8).
    void writeWholeFile(const std::string& name, const QByteArray& content) const;
    void appendToFile(const std::string& name, const QByteArray& content) const;

private:
    void writeOut(const std::string& name, int flags, const QByteArray& content) const;

    QString m_path;
    int m_descriptor;
};

/// The Errors of these procedures, for whoever reads or writes a file piece by piece.
[[noreturn]] void FailToRead(const QString& path, const QString& reason);
[[noreturn]] void FailToWrite(const QString& path, const QString& reason);

/// Removes what was written of a file that did not become whole. Only a plain file is removed: a device, which a user
/// may well name as a target, stays.
void DiscardFile(const QString& path);

/// Puts the finished file `from` in the place of `to` (same folder) in one step and makes the change durable: after a
/// power cut either the old or the new file stands there. Throws Error, and `to` is then as it was.
void ReplaceFile(const QString& from, const QString& to);

/// The place to which a path leads through whatever links, as a full path: a file that is put there, or made beside it,
/// leaves the links as they are. There need be no file in that place.
QString FileItself(const QString& path);

/// Removes what programs that no longer run left behind, with UnfinishedFile, while they made files of this folder.
/// `name` is a regular expression for the names that the files would have had.
void RemoveLeftovers(const QDir& folder, const QString& name);

/// Whether two paths lead to the same existing file, through whatever links.
bool IsSameFile(const QString& first, const QString& second);

/// A file that is being made beside its place: it has a name of its own there until putInPlace(), and is removed when
/// that never comes. What a killed program left behind for the same place is removed by the next one; another program
/// that is making the same file is left alone. Whoever may not read the file that it replaces, or the one of which it
/// is a copy, may not read this one either, at no time.
class UnfinishedFile
{
public:
    /// Makes the file, empty. `target` is the place that it will have; where a link stands there, the file to which it
    /// leads is meant. `source` is what the file will be a copy of, if it is one. Throws Error.
    explicit UnfinishedFile(const QString& target, const QString& source = {});
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile();

    /// The place that the file will have, without links.
    const QString& target() const { return m_target; }

    /// Where to write the file.
    const QString& path() const { return m_path; }

    /// Replaces what stands in the file's place (ReplaceFile()).
    void putInPlace();

private:
    QString m_target;
    QString m_path;
    /// The mode bits that the finished file gets; none for those of any new file.
    std::optional<unsigned> m_permissions;
};

} // namespace stemwright
