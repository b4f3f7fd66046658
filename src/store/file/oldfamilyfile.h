// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"
#include "store/engine/connection.h"
#include "store/file/recognise.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

/// A family file that cannot be opened as it is: it was made by an earlier release, or it is kept in the format of
/// earlier releases, or both. It is only read. Fails with Error and as the engine fails. Stands on the Jet reader and
/// on copies of family files.
namespace stemwright
{

class OldFamilyFile
{
public:
    OldFamilyFile(const OldFamilyFile&) = delete;
    OldFamilyFile& operator=(const OldFamilyFile&) = delete;
    virtual ~OldFamilyFile() = default;

    const QString& path() const { return m_path; }

    /// As the file states it.
    const QString& version() const { return m_version; }

    virtual FileFormat format() const = 0;

    /// Copies the file as it is to `target`, replacing a file that stands there in one step.
    virtual void copyTo(const QString& target) const = 0;

    /// Throws Error when another program has changed the file since it was opened.
    virtual void requireUnchanged() const = 0;

    /// Makes a file of the engine at `target` that has the old file's own tables and columns. Returns what stays
    /// behind, each as a phrase.
    virtual QStringList takeOver(const QString& target, Talk& talk) const = 0;

protected:
    OldFamilyFile(QString path, QString version) : m_path(std::move(path)), m_version(std::move(version)) {}

private:
    QString m_path;
    QString m_version;
};

/// A family file in a Jet database; refused when anything of it is missing.
std::unique_ptr<OldFamilyFile> OpenJetFamilyFile(const QString& path);

/// A family file of the engine that an earlier version made. It stays locked as long as this lives.
std::unique_ptr<OldFamilyFile> OldEngineFamilyFile(const QString& path, std::unique_ptr<Connection> connection,
                                                   const QString& version);

} // namespace stemwright
