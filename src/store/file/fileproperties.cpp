// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/fileproperties.h"

#include <QtCore/QFileInfo>

namespace stemwright
{

FileProperties PropertiesOf(Connection& connection)
{
    FileProperties properties;
    properties.path = connection.path();
    properties.size = QFileInfo(connection.path()).size();
    properties.individuals = connection.countRows(QStringLiteral("Indi"));
    properties.families = connection.countRows(QStringLiteral("Fam"));
    properties.pictures = connection.countRows(QStringLiteral("AlbumTOC"));
    properties.marks = connection.countRows(QStringLiteral("Pic2Person"));
    Statement select = connection.prepare(QStringLiteral("SELECT StemoraVersion, GEDCOMFile, ImportDate FROM GenInfo"));
    if (select.step()) {
        properties.version = select.text(0);
        properties.gedcomFile = select.text(1);
        properties.importDate = select.text(2);
    }
    return properties;
}

} // namespace stemwright
