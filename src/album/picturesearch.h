// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

/// Finding the picture files that earlier releases named instead of keeping them. The names come from another computer,
/// mostly one that wrote folders with backslashes and told no upper from lower case. Nothing here fails. Stands on
/// nothing.
namespace stemwright
{

class PictureSearch
{
public:
    /// `folder` is that of the family file or album which names the pictures.
    explicit PictureSearch(QString folder) : m_folder(std::move(folder)) {}

    /// The file that `stored` names, looked for where it says, relative to the folder where it names no full path, and
    /// then under its bare name in the folder; in any case of its letters. Empty when there is none.
    QString find(const QString& stored);

private:
    /// The names in a folder by their folded form.
    using Entries = QHash<QString, QString>;

    QString below(const QString& folder, const QString& path);
    QString entry(const QString& folder, const QString& name);

    QString m_folder;
    QHash<QString, Entries> m_entries;
};

/// The name of a file without its folders, written with slashes or backslashes, and without its extension.
QString BaseNameOf(const QString& stored);

} // namespace stemwright
