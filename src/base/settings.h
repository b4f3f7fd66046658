// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

namespace stemwright
{

/// The per-user settings: text values by section and key. A missing value reads as the empty text; a value that cannot
/// be written (a read-only home folder, say) is lost without an error, since no setting is worth stopping for.
/// Documents are named like files.
class Settings
{
public:
    Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;
    virtual ~Settings() = default;

    virtual QString value(const QString& section, const QString& key) const = 0;
    virtual void setValue(const QString& section, const QString& key, const QString& value) = 0;

    /// A long value, which stands in a file of its own and so does not slow the others down; empty when missing.
    virtual QByteArray document(const QString& name) const = 0;
    /// Throws Error when the document cannot be written: the user asked for it to be kept.
    virtual void setDocument(const QString& name, const QByteArray& content) = 0;
};

/// Settings in an INI file, documents beside it; each change is written at once.
class FileSettings : public Settings
{
public:
    /// Uses the user's own file in the platform's configuration folder.
    FileSettings();
    /// Uses the INI file at `path`, made when first written.
    explicit FileSettings(QString path);

    QString value(const QString& section, const QString& key) const override;
    void setValue(const QString& section, const QString& key, const QString& value) override;

    QByteArray document(const QString& name) const override;
    void setDocument(const QString& name, const QByteArray& content) override;

private:
    QString documentPath(const QString& name) const;

    QString m_path;
};

/// Settings that are forgotten with the object.
class MemorySettings : public Settings
{
public:
    QString value(const QString& section, const QString& key) const override;
    void setValue(const QString& section, const QString& key, const QString& value) override;

    QByteArray document(const QString& name) const override { return m_documents.value(name); }

    void setDocument(const QString& name, const QByteArray& content) override { m_documents.insert(name, content); }

private:
    QHash<QString, QString> m_values;
    QHash<QString, QByteArray> m_documents;
};

/// The sections and keys in use.
namespace setting
{
inline const QString openCreateFamFile = QStringLiteral("OpenCreateFamFile");
inline const QString lastFamilyFile = QStringLiteral("LastFamilyFile");
inline const QString showNewAlbumConfirm = QStringLiteral("ShowNewAlbumConfirm");
/// The paths of the files last created or opened, the latest first, separated by line breaks.
inline const QString recentFamilyFiles = QStringLiteral("RecentFamilyFiles");
inline const QString dontShow = QStringLiteral("DontShow");
inline const QString picListQueries = QStringLiteral("PicListQueries");
inline const QString defaultPicListQuery = QStringLiteral("DefaultPicListQuery");
/// Where windows stood, by the name of the window or its part.
inline const QString windows = QStringLiteral("Windows");
inline const QString gedcom = QStringLiteral("GEDCOM");
inline const QString gedcomPath = QStringLiteral("GedcomPath");
inline const QString exportWizard = QStringLiteral("ExportWizard");
/// "0" when the dialog that ends a site build is not to be shown.
inline const QString confirmScreen = QStringLiteral("ConfirmScreen");
/// What uploading a site would need to know.
inline const QString ftp = QStringLiteral("FTP");
inline const QString ftpServer = QStringLiteral("Server");
inline const QString ftpUsername = QStringLiteral("Username");
inline const QString ftpPassword = QStringLiteral("Password");
inline const QString ftpRootSubdir = QStringLiteral("RootSubdir");
} // namespace setting

} // namespace stemwright
