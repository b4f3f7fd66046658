// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

namespace stemwright
{

/// The application's folder: templates, styles, graphics and the sample family file, read-only for the program. It is
/// passed to whatever needs it, so that a test can bring its own.
class ApplicationFolder
{
public:
    explicit ApplicationFolder(QString path);

    /// The folder that belongs to the running program: ../share/stemwright beside the program's own folder.
    /// Throws Error when it is not there, which means a broken installation.
    static ApplicationFolder ofProgram();

    /// The folder's full path, without a separator at the end.
    const QString& path() const { return m_path; }

    /// The full path of a file below the folder, for example file("html/topleft.html").
    QString file(const QString& relativePath) const { return m_path + u'/' + relativePath; }

    /// The family file of the imaginary cat family, which users may try things on.
    QString sampleFile() const { return file(QStringLiteral("felinity.kvf")); }

    /// The folder below which new setups put their sites: "fampages" in the application's folder, or in the user's
    /// documents where the application's folder cannot be written (a system-wide installation).
    QString pagesFolder() const;

    /// Where the user's own copies of what the application brings go when its folder cannot be written.
    static QString userFolder();

    bool isWritable() const;

private:
    QString m_path;
};

} // namespace stemwright
