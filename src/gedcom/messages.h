// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/talk.h"

#include <exception>

/// The texts of the GEDCOM import, word for word: messages first, then the reasons that errors carry.
namespace stemwright::gedcommessages
{

FileRequest SelectGedcomFile(const QString& folder);
Message CreatingBackup();
Message FileConflict(const QString& newPath, const QString& storedPath);
Message DuplicateIndividual(int id, const QString& surname, const QString& givenName);
Message DuplicateFamily(int id);
/// What ended the import: the exception's own text, or what the engine's exception means for the family file.
Message ImportFailed(const QString& familyFile, const std::exception& exception);

inline const QString progressTitle = QStringLiteral("Import Progress");
inline const QString progressCaption = QStringLiteral("Importing GEDCOM file");

QString CannotOpen(const QString& path, const QString& reason);
QString NotAFile(const QString& path);
QString CannotRead(const QString& reason);
QString EmptyFile();
QString ZipArchive();
QString BinaryFile();
QString NoRecords();
QString NoIndividuals();
/// `line` has the first identifier that is no number.
QString NobodyTaken(qint64 individuals, qint64 line, const QString& identifier);
QString NoColumnsFor(const QString& stem, const QString& label, qint64 line);

} // namespace stemwright::gedcommessages
