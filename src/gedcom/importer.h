// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "gedcom/importreport.h"
#include "store/engine/connection.h"

#include <QtCore/QFile>

/// The GEDCOM import: rebuilds the tree tables (Indi, Fam, Fam2Child, SchemaIndi, SchemaFam, Spouse2Fam) of a family
/// file from a GEDCOM file; pictures and their marks stay. Stands on the reader, the records and the store.
namespace stemwright
{

/// Imports the GEDCOM file at `path`. All of it is one transaction, or a part of the caller's. True when it ran to its
/// end. False when it failed, with all tables as they were, or when a duplicate identifier stopped it, with the tables
/// as far as they were filled (ImportReport::outcome tells which); the user was told why. A file that would leave
/// nobody in a tree that has individuals fails. The report is set in every case.
bool ImportGedcom(Connection& connection, const QString& path, Environment& environment, ImportReport& report);

/// Opens a GEDCOM file for reading. Throws Error when that cannot be done, when it is no file at all, but a folder or
/// device, and when its first bytes tell that it is no text.
void OpenGedcomFile(QFile& file);

/// The work of ImportGedcom on an open input that can be positioned, within the caller's transaction. Returns the
/// message of the duplicate that stopped it; none when it ran to its end. Throws Error or the engine's exception.
std::optional<Message> RebuildTree(QIODevice& input, Connection& connection, Progress& progress, ImportReport& report);

} // namespace stemwright
