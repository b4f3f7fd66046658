// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/file/messages.h"

#include <QtCore/QDir>

namespace stemwright::storemessages
{

namespace
{

FileRequest FamilyFileRequest(const QString& title, FilePurpose purpose)
{
    return {title, purpose, {QStringLiteral("Stemwright Family File (*.kvf)")}, {}, {}};
}

} // namespace

Message CouldNotReopen()
{
    return {{}, QStringLiteral("Internal error: Could not reopen new database"), Icon::Critical};
}

Message CannotCreate(const QString& path, const QString& reason)
{
    return {QStringLiteral("Cannot create family file"),
            QStringLiteral("The family file %1 cannot be created.\n\n%2").arg(QDir::toNativeSeparators(path), reason),
            Icon::Critical};
}

Message CannotOpen(const QString& path, const QString& reason)
{
    return {QStringLiteral("Cannot open family file"),
            QStringLiteral("The family file %1 cannot be opened.\n\n%2").arg(QDir::toNativeSeparators(path), reason),
            Icon::Critical};
}

Message CannotSaveAs(const QString& path, const QString& reason)
{
    return {QStringLiteral("Save Family File As"),
            QStringLiteral("The family file cannot be saved as %1.\n\n%2").arg(QDir::toNativeSeparators(path), reason),
            Icon::Critical};
}

QString ChangesKept(const QString& reason)
{
    return reason + QStringLiteral("\n\nYour changes are not lost: when this is mended, save them again.");
}

Message JournalsSetAside(const QString& path, const QStringList& aside)
{
    return {QStringLiteral("Opening family file"),
            QStringLiteral("Beside the family file %1 lay the record of a change that broke off, but it was made for "
                           "another file that stood there before. It was left out and renamed to:\n\n%2\n\n"
                           "If the family file holds what you expect, you can delete it.")
                .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(aside.join(u'\n'))),
            Icon::Warning};
}

Message LargerBackupKept(const QString& backup, const QString& kept)
{
    return {QStringLiteral("Creating Backup Family File"),
            QStringLiteral("The older backup, '%1', holds more individuals than your family file does now, as after an "
                           "import that was stopped. Therefore it was kept under another name:\n\n%2\n\n"
                           "If you will want to use it, you will have to change its extension to \".kvf\".")
                .arg(QDir::toNativeSeparators(backup), QDir::toNativeSeparators(kept)),
            Icon::Information};
}

Message ReplaceExisting(const QString& path)
{
    return {{},
            QDir::toNativeSeparators(path) + QStringLiteral(" already exists.\nDo you want to replace it?"),
            Icon::Warning,
            {Button::Yes, Button::No},
            Button::No};
}

Message CreationConfirmation()
{
    return {QStringLiteral("Family File Creation Confirmation"),
            QStringLiteral("Congratulations! You have just created a new family file. Now you can "
                           "import a GEDCOM file by selecting File > Import GEDCOM file."
                           "You can also "
                           "use Pictures > Add Picture Record "
                           "to create new picture records. Afterwards you will be able to use "
                           "Edit Picture Record and Delete Picture Record to modify or remove existing records."),
            Icon::Information};
}

QString DontShowAgain()
{
    return QStringLiteral("Don't show this screen in the future.");
}

Message OpeningTestFile(const QString& path, const QString& backup)
{
    return {QStringLiteral("Opening Test File"),
            QStringLiteral("You are going to open the test family file,\n%1. "
                           "You may modify it at your will, because Stemwright has created a "
                           "backup of this file, %2. "
                           "If, in the future, you will want to discard "
                           "your changes, you will have to copy this backup file to a file "
                           "with extension '.kvf'.")
                .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(backup)),
            Icon::Information};
}

Message NoTestFile(const QString& path)
{
    return {{}, QStringLiteral("Couldn't find test family file ") + QDir::toNativeSeparators(path), Icon::Warning};
}

FileRequest ChooseNewFamilyFile()
{
    return FamilyFileRequest(QStringLiteral("Create New Family File"), FilePurpose::Save);
}

FileRequest ChooseFamilyFile()
{
    return FamilyFileRequest(QStringLiteral("Open Existing Family File"), FilePurpose::Open);
}

FileRequest ChooseCopy()
{
    return FamilyFileRequest(QStringLiteral("Save Family File As"), FilePurpose::Save);
}

} // namespace stemwright::storemessages
