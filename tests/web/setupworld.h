// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testworld.h"

namespace stemwright::test
{

/// A test world with a new, open family file and an application folder of its own: an emblem and three tree icons.
class SetupWorld : public TestWorld
{
public:
    SetupWorld();

    Connection& connection() { return file.connection(); }

    QStringList column(const QString& sql) { return Column(connection(), sql); }

    /// Runs a statement that changes the file as no procedure would.
    void execute(const char* sql) { connection().execute(QString::fromUtf8(sql)); }

    /// Two individuals, numbered 1 and 2.
    void addIndividuals();

    ApplicationFolder ownApplication;
    Environment own;
};

/// The text of the Error that an action throws; empty when it throws none.
template <typename Action>
QString ErrorOf(Action action)
{
    try {
        action();
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what());
    }
    return {};
}

} // namespace stemwright::test
