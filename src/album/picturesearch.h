// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Finds the picture files that family files and albums of earlier releases name by their paths, most of which were
/// written down on a disk that is long gone. What cannot be found or read is simply not found. Stands on the file
/// system; each folder is listed once, so that an object should not live longer than the work it is made for.
namespace stemwright
{

class PictureSearch
{
public:
    /// `folders` are the ones beside whose files the pictures may lie, the most likely one first.
    explicit PictureSearch(QStringList folders) : m_folders(std::move(folders)) {}

    /// The full path of the file that is meant: the one at the stored path where there is such a file, else the one
    /// below a folder at as much of the stored path's end as possible, at least at its file name. Slashes of either
    /// kind separate folders, and letter case does not count. Empty for an empty name, and when there is no such
    /// file.
    QString find(const QString& storedPath);

private:
    /// The names in a folder. Asking the system for each would take far longer than listing them once.
    struct Names {
        QSet<QString> all;
        QHash<QString, QString> byFoldedForm;
    };

    /// The file at the path below the folder that these parts name.
    QString below(const QString& folder, const QStringList& parts);
    const Names& namesIn(const QString& folder);

    QStringList m_folders;
    /// The folders that were looked into.
    QHash<QString, Names> m_listed;
};

/// The name of a file without its folders, written with slashes or backslashes, and without its extension.
QString BaseNameOf(const QString& storedPath);

} // namespace stemwright
