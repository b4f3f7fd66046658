// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/messages.h"

#include "base/error.h"
#include "store/engine/engineerror.h"

#include <SQLiteCpp/Exception.h>

#include <QtCore/QDir>
#include <QtCore/QStringList>

namespace stemwright::gedcommessages
{

namespace
{

QString Lines(const QStringList& lines)
{
    return lines.join(u'\n');
}

} // namespace

FileRequest SelectGedcomFile(const QString& folder)
{
    return {
        QStringLiteral("Select GEDCOM file"), FilePurpose::Open, {QStringLiteral("GEDCOM file (*.ged)")}, folder, {}};
}

Message CreatingBackup()
{
    return {QStringLiteral("Creating Backup Family File"),
            Lines({QStringLiteral("You are going to rewrite the genealogical "),
                   QStringLiteral("information in your family file, "),
                   QStringLiteral("Therefore Stemwright will now create a backup family file, "),
                   QStringLiteral("If in the future you will want to use this backup "),
                   QStringLiteral("file, you will have to change its extension to \".kvf\".")}),
            Icon::Information};
}

Message FileConflict(const QString& newPath, const QString& storedPath)
{
    return {QStringLiteral("Potential GEDCOM File Conflict"),
            Lines({QStringLiteral("You are going to import GEDCOM file:"), QDir::toNativeSeparators(newPath),
                   QStringLiteral("The current family file already contains "),
                   QStringLiteral("information from the following GEDCOM file:"),
                   QDir::toNativeSeparators(storedPath) + u'.',
                   QStringLiteral("If the new GEDCOM file contains a different family "),
                   QStringLiteral("(e.g., originates from a different Family "),
                   QStringLiteral("Tree Maker\u00AE file), you may get unpredicatable results. "),
                   QStringLiteral("We recommend that you import this GEDCOM "),
                   QStringLiteral("file into a new family file. To do so, click No "),
                   QStringLiteral("and go to File > New Family File. "),
                   QStringLiteral("Press Yes to continue the import, No to quit the import.")}),
            Icon::Question,
            {Button::Yes, Button::No},
            Button::No};
}

Message DuplicateIndividual(int id, const QString& surname, const QString& givenName)
{
    // The names come from the file and may hold anything, a placeholder as well: multi-argument arg() leaves them
    // alone.
    return {{},
            QStringLiteral("Your GEDCOM file has a duplicate entry for individual ID # %1 (%2, %3). Please click OK, "
                           "correct the condition and import the GEDCOM again.")
                .arg(QString::number(id), surname, givenName),
            Icon::Critical};
}

Message DuplicateFamily(int id)
{
    return {{},
            QStringLiteral("Your GEDCOM file has a duplicate entry for family ID # %1. Please click OK, correct the "
                           "condition and import the GEDCOM again.")
                .arg(id),
            Icon::Critical};
}

Message ImportFailed(const QString& familyFile, const std::exception& exception)
{
    if (dynamic_cast<const SQLite::Exception*>(&exception) == nullptr) {
        return {{}, ErrorText(exception), Icon::Critical};
    }
    return {{},
            QStringLiteral("The family file %1 cannot be changed. %2 Your family tree was left as it was.")
                .arg(QDir::toNativeSeparators(familyFile), ReasonText(exception)),
            Icon::Critical};
}

QString CannotOpen(const QString& path, const QString& reason)
{
    return QStringLiteral("Cannot open the GEDCOM file %1: %2.").arg(QDir::toNativeSeparators(path), reason);
}

QString NotAFile(const QString& path)
{
    return QStringLiteral("%1 is not a file. Please choose the GEDCOM file itself.")
        .arg(QDir::toNativeSeparators(path));
}

QString CannotRead(const QString& reason)
{
    return QStringLiteral("The GEDCOM file cannot be read: %1. Your family tree was left as it was.").arg(reason);
}

QString EmptyFile()
{
    return QStringLiteral("The GEDCOM file is empty. Please export it again from your genealogy program. Your family "
                          "tree was left as it was.");
}

QString ZipArchive()
{
    return QStringLiteral("This is a ZIP archive, not a GEDCOM file. Please unpack it and import the file with the "
                          "extension \".ged\" from it. Your family tree was left as it was.");
}

QString BinaryFile()
{
    return QStringLiteral("This is not a GEDCOM file but binary data. Please export your tree as GEDCOM from your "
                          "genealogy program. Your family tree was left as it was.");
}

QString NoRecords()
{
    return QStringLiteral(
        "This is not a GEDCOM file: no record was found in it. Please export your tree as GEDCOM from "
        "your genealogy program. Your family tree was left as it was.");
}

QString NoIndividuals()
{
    return QStringLiteral(
        "There is no individual in the GEDCOM file. Please look whether it is the file that you meant, "
        "and whether your genealogy program has exported the whole tree. Your family tree was left as "
        "it was.");
}

QString NobodyTaken(qint64 individuals, qint64 line, const QString& identifier)
{
    return QStringLiteral(
               "None of the %1 individuals in the GEDCOM file can be imported, because their identifiers are "
               "not such numbers as in @I12@ (line %2: %3). Please look in your genealogy program for a "
               "setting of its export that numbers the individuals, or let another program number them "
               "anew. Your family tree was left as it was.")
        .arg(QString::number(individuals), QString::number(line), identifier);
}

QString NoColumnsFor(const QString& stem, const QString& label, qint64 line)
{
    const QString fact = label.isEmpty() ? stem : QStringLiteral("%1 (%2)").arg(stem, label);
    return QStringLiteral(
               "The GEDCOM file has more kinds of events than a family file can hold: there is no place for %1 "
               "in line %2. Please give several of these events one common type in your genealogy program "
               "and export the file again. Your family tree was left as it was.")
        .arg(fact, QString::number(line));
}

} // namespace stemwright::gedcommessages
