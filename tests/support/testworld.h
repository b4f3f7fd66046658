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
/// 12 March 2026, the project's application folder, and a temporary folder.
class TestWorld
{
public:
    TestWorld();

    /// Creates a new family file in the temporary folder and leaves it open.
    FamilyFile& newFamilyFile();

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

/// The first column of a query's rows, "-" for Null.
QStringList Column(Connection& connection, const QString& sql);

} // namespace stemwright::test

/// Lets test failures show texts.
void PrintTo(const QString& text, std::ostream* stream);
