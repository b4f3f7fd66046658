// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <ostream>

namespace stemwright::test
{

/// How a run of the program ended. A program that crashed has no status.
struct Outcome {
    std::optional<int> status;
    QString output;
    QString errors;
};

/// Shows the whole outcome when a test fails.
std::ostream& operator<<(std::ostream& stream, const Outcome& outcome);

/// A temporary folder with settings of its own, in which the real program is run.
class CliWorld
{
public:
    CliWorld();

    /// Environment variables by name.
    using Variables = QHash<QString, QString>;

    /// Runs the program in the folder with nobody at the keyboard, and with further environment variables.
    Outcome run(const QStringList& arguments, const Variables& variables = {}) const;

    /// Runs the program on a terminal of its own, with a user who types all of `typed` beforehand and then the key for
    /// the end of input. What the terminal showed stands in the outcome's output, with the typed text as it is echoed.
    Outcome runOnTerminal(const QStringList& arguments, const QByteArray& typed = {}) const;

    /// Runs any program in the folder.
    Outcome runProgram(const QString& name, const QStringList& arguments, const QByteArray& typed = {},
                       const Variables& variables = {}) const;

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a file into the folder and returns its path.
    QString write(const QString& name, const QByteArray& content) const;

    /// A GEDCOM file of a couple and their child in the folder.
    QString writeTree(const QString& name) const;

    /// The program's environment: the test's own, with settings in the folder.
    const QProcessEnvironment& environment() const { return m_environment; }

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};

} // namespace stemwright::test
