// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setupworld.h"

#include <QtCore/QDir>

namespace stemwright::test
{

SetupWorld::SetupWorld()
{
    application = ApplicationFolder(path("application"));
    QDir().mkpath(application.file("graphics"));
    write("application/graphics/tree.gif", "GIF89a emblem");
    for (const char* number : {"00", "01", "09"}) {
        write(QString("application/graphics/icons_tree_%1.gif").arg(number), "GIF89a");
    }
    newFamilyFile();
}

void SetupWorld::addIndividuals()
{
    execute("INSERT INTO Indi (Id, Surname, GivenName, Title, Suffix) VALUES (1, 'Windsor', 'Anne', 'Princess', 'II'),"
            " (2, 'O''Hara', NULL, NULL, NULL)");
}

} // namespace stemwright::test
