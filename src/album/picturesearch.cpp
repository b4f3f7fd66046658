// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/picturesearch.h"

#include "base/pattern.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace stemwright
{

namespace
{

/// What no system takes for a path need not be looked for.
constexpr qsizetype longestPath = 4096;

QString WithSlashes(const QString& storedPath)
{
    return QString(storedPath).replace(u'\\', u'/');
}

} // namespace

QString PictureSearch::find(const QString& storedPath)
{
    const QString path = WithSlashes(storedPath.left(longestPath));
    QStringList tail = path.split(u'/', Qt::SkipEmptyParts);
    if (path.startsWith(u'/')) {
        // Not every folder on the way can be listed.
        const QString found = QFileInfo(path).isFile() ? QDir::cleanPath(path) : below(QDir::rootPath(), tail);
        if (!found.isEmpty()) {
            return found;
        }
    }
    for (; !tail.isEmpty(); tail.removeFirst()) {
        for (const QString& folder : m_folders) {
            if (const QString found = below(folder, tail); !found.isEmpty()) {
                return found;
            }
        }
    }
    return {};
}

QString PictureSearch::below(const QString& folder, const QStringList& parts)
{
    QString found = folder;
    for (const QString& part : parts) {
        QString name = part;
        if (name != u"." && name != u"..") {
            const Names& names = namesIn(found);
            // A file that has exactly this name goes before one whose letters differ in case.
            if (!names.all.contains(name)) {
                name = names.byFoldedForm.value(Pattern::folded(name));
            }
        }
        if (name.isEmpty()) {
            return {};
        }
        found = QDir(found).filePath(name);
    }
    return QFileInfo(found).isFile() ? QDir::cleanPath(found) : QString();
}

const PictureSearch::Names& PictureSearch::namesIn(const QString& folder)
{
    const auto listed = m_listed.constFind(folder);
    if (listed != m_listed.constEnd()) {
        return *listed;
    }
    Names names;
    // The last one stays, so that of names that differ only in case the first in order is found.
    for (const QString& name :
         QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name | QDir::Reversed)) {
        names.all.insert(name);
        names.byFoldedForm.insert(Pattern::folded(name), name);
    }
    return *m_listed.insert(folder, names);
}

QString BaseNameOf(const QString& storedPath)
{
    return QFileInfo(WithSlashes(storedPath)).completeBaseName();
}

} // namespace stemwright
