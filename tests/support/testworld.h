// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"
#include "support/scriptedtalk.h"

#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

#include <ostream>

namespace stemwright::test
{

/// Everything a test of a domain procedure needs: a scripted user, settings in memory, a clock that stands at noon of
/// 12 March 2026, the project's application folder (another one may take its place), and a temporary folder.
class TestWorld
{
public:
    TestWorld();

    /// Creates a new family file in the temporary folder and leaves it open.
    FamilyFile& newFamilyFile();

    /// The connection of the open family file, a query's first column, and a statement that changes what no procedure
    /// would.
    Connection& connection() { return file.connection(); }

    QStringList column(const QString& sql);

    void execute(const QString& sql) { connection().execute(sql); }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a file into the temporary folder and returns its path.
    QString write(const QString& name, const QByteArray& content) const;

    ScriptedTalk talk;
    MemorySettings settings;
    FixedClock clock;
    ApplicationFolder application;
    Environment environment;
    FamilyFile file;

private:
    QTemporaryDir m_folder;
};

/// The path of a file below tests/data, and its content as a text.
QString TestData(const QString& name);
QString TestDataText(const QString& name);

/// The rows of a table below tests/data: one a line, its fields between "|", lines with "#" left out. In a field stand
/// ␣ for a blank at an end, ⇥ ␤ ␍ for tab, LF and CR, and ∅ for Null.
std::vector<QStringList> TestTable(const QString& name);

/// The rows of a query, columns with `separator` between them, "-" for Null.
QStringList Rows(Connection& connection, const QString& sql, const QString& separator = "|");

/// The text of the Error that an action throws; empty when it throws none.
QString ErrorOf(const std::function<void()>& action);

} // namespace stemwright::test

/// Let test failures show texts.
void PrintTo(const QString& text, std::ostream* stream);
std::ostream& operator<<(std::ostream& stream, const QString& text);
