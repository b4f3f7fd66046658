// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setupworld.h"

#include <QtCore/QDir>

namespace stemwright::test
{

SetupWorld::SetupWorld()
    : ownApplication(path(QStringLiteral("application"))), own{talk, settings, clock, ownApplication}
{
    QDir().mkpath(ownApplication.file(QStringLiteral("graphics")));
    write(QStringLiteral("application/graphics/tree.gif"), "GIF89a emblem");
    for (const char* number : {"00", "01", "09"}) {
        write(QStringLiteral("application/graphics/icons_tree_%1.gif").arg(QString::fromLatin1(number)), "GIF89a");
    }
    CreateFamilyFile(file, path(QStringLiteral("Family.kvf")), own);
}

void SetupWorld::addIndividuals()
{
    execute("INSERT INTO Indi (Id, Surname, GivenName, Title, Suffix) VALUES (1, 'Windsor', 'Anne', 'Princess', 'II'),"
            " (2, 'O''Hara', NULL, NULL, NULL)");
}

} // namespace stemwright::test
