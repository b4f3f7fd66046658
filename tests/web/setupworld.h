// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/testworld.h"

#include <QtCore/QDir>

namespace stemwright::test
{

/// A test world with a new, open family file and an application folder of its own: an emblem and three tree icons.
class SetupWorld : public TestWorld
{
public:
    SetupWorld()
    {
        application = ApplicationFolder(path("application"));
        QDir().mkpath(application.file("graphics"));
        write("application/graphics/tree.gif", "GIF89a emblem");
        for (const char* number : {"00", "01", "09"}) {
            write(QString("application/graphics/icons_tree_%1.gif").arg(number), "GIF89a");
        }
        newFamilyFile();
    }

    /// Two individuals, numbered 1 and 2.
    void addIndividuals()
    {
        execute("INSERT INTO Indi (Id, Surname, GivenName, Title, Suffix) VALUES"
                " (1, 'Windsor', 'Anne', 'Princess', 'II'), (2, 'O''Hara', NULL, NULL, NULL)");
    }
};

} // namespace stemwright::test
