// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/connection.h"

#include <QtCore/QString>

/// What a family file holds, counted. Fails as the engine fails. Stands on the connection.
namespace stemwright
{

struct FileProperties {
    QString path;
    /// In bytes; 0 where the system does not tell.
    qint64 size = 0;
    /// The version of the program that wrote it.
    QString version;
    qint64 individuals = 0;
    qint64 families = 0;
    qint64 pictures = 0;
    qint64 marks = 0;
    /// The GEDCOM file of the tree and when it was imported, as an ISO date and time; empty when there was none.
    QString gedcomFile;
    QString importDate;
};

FileProperties PropertiesOf(Connection& connection);

} // namespace stemwright
