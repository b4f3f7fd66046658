// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/picturesearch.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

QString WithSlashes(const QString& stored)
{
    return QString(stored).replace(u'\\', u'/');
}

} // namespace

/// An entry of a folder, in the given case if there is one, otherwise in any.
QString PictureSearch::entry(const QString& folder, const QString& name)
{
    const QDir directory(folder);
    if (name == u"." || name == u".." || directory.exists(name)) {
        return name;
    }
    auto known = m_entries.find(folder);
    if (known == m_entries.end()) {
        known = m_entries.insert(folder, {});
        for (const QString& each : directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::System)) {
            known->insert(each.toCaseFolded(), each);
        }
    }
    return known->value(name.toCaseFolded());
}

/// A file below a folder, by its path in any case.
QString PictureSearch::below(const QString& folder, const QString& path)
{
    QString found = folder;
    for (const QString& part : path.split(u'/', Qt::SkipEmptyParts)) {
        const QString name = entry(found, part);
        if (name.isEmpty()) {
            return {};
        }
        found = QDir(found).filePath(name);
    }
    return QFileInfo(found).isFile() ? QDir::cleanPath(found) : QString();
}

QString PictureSearch::find(const QString& stored)
{
    const QString path = WithSlashes(stored);
    const QString name = path.section(u'/', -1);
    if (name.isEmpty()) {
        return {};
    }
    const QString found = below(QDir::isAbsolutePath(path) ? QDir::rootPath() : m_folder, path);
    return found.isEmpty() ? below(m_folder, name) : found;
}

QString BaseNameOf(const QString& stored)
{
    return QFileInfo(WithSlashes(stored)).completeBaseName();
}

} // namespace stemwright
