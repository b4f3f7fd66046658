// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "base/settings.h"

#include "base/error.h"
#include "base/files.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>

#include <utility>

namespace stemwright
{

namespace
{

QString KeyPath(const QString& section, const QString& key)
{
    return section + u'/' + key;
}

QString UserSettingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/stemwright/stemwright.ini");
}

} // namespace

FileSettings::FileSettings() : m_path(UserSettingsPath()) {}

FileSettings::FileSettings(QString path) : m_path(std::move(path)) {}

QString FileSettings::value(const QString& section, const QString& key) const
{
    return QSettings(m_path, QSettings::IniFormat).value(KeyPath(section, key)).toString();
}

void FileSettings::setValue(const QString& section, const QString& key, const QString& value)
{
    QSettings(m_path, QSettings::IniFormat).setValue(KeyPath(section, key), value);
}

QString FileSettings::documentPath(const QString& name) const
{
    return QFileInfo(m_path).path() + u'/' + name;
}

QByteArray FileSettings::document(const QString& name) const
{
    try {
        return QFileInfo::exists(documentPath(name)) ? ReadWholeFile(documentPath(name)) : QByteArray();
    } catch (const Error&) {
        return {};
    }
}

void FileSettings::setDocument(const QString& name, const QByteArray& content)
{
    CreateFolderPath(QFileInfo(m_path).path());
    UnfinishedFile file(documentPath(name));
    WriteWholeFile(file.path(), content);
    file.putInPlace();
}

QString MemorySettings::value(const QString& section, const QString& key) const
{
    return m_values.value(KeyPath(section, key));
}

void MemorySettings::setValue(const QString& section, const QString& key, const QString& value)
{
    m_values.insert(KeyPath(section, key), value);
}

} // namespace stemwright
