// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "store/upgrade/messages.h"

#include <QtCore/QDir>

namespace stemwright::upgrademessages
{

namespace
{

/// More lines make a message box grow out of the screen.
constexpr qsizetype mostLines = 20;

QString Listed(const QStringList& things)
{
    const qsizetype more = things.size() - mostLines;
    const QString text = things.mid(0, mostLines).join(u'\n');
    return more > 0 ? text + QStringLiteral("\nand %1 more").arg(more) : text;
}

} // namespace

Message BeforeUpgrade(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    return {QStringLiteral("Before FamilyFile Upgrade"),
            QStringLiteral("Your family file '%1' was created with an earlier version of Stemwright. "
                           "We are going to upgrade this file to the current version of Stemwright.  "
                           "First we are going to back up this file. \n\n"
                           "Click Yes to back up, No to skip the backup, Cancel not to open '%1'.")
                .arg(shown),
            Icon::Question,
            {Button::Yes, Button::No, Button::Cancel},
            Button::Yes};
}

Message BackedUp(const QString& backup)
{
    return {QStringLiteral("Creating Backup Family File"),
            QStringLiteral("Your family file was backed up to '%1'.\n\n"
                           "If in the future you will want to use this backup "
                           "file, you will have to change its extension to \".kvf\".")
                .arg(QDir::toNativeSeparators(backup)),
            Icon::Information};
}

Message SecondBackup(const QString& backup)
{
    return {upgrading,
            QStringLiteral("Your family file was created in an earlier version of Stemwright. "
                           "Therefore Stemwright will upgrade the file to its current version. "
                           "Before that, Stemwright will create a backup family file, \n\n%1\n\n"
                           "If, in the future, you will want to use this backup "
                           "file, you will have to change its extension to \".kvf\".")
                .arg(QDir::toNativeSeparators(backup)),
            Icon::Information};
}

Message PicturesNotFound(const QStringList& files)
{
    return {
        upgrading,
        QStringLiteral("Earlier versions of Stemwright kept pictures outside of the family file. These pictures were "
                       "not found on this computer:\n\n%1\n\n"
                       "Their records are in your album, without the pictures. You can add the pictures with Edit "
                       "Picture Record.")
            .arg(Listed(files)),
        Icon::Warning};
}

Message LeftInBackup(const QStringList& things, const QString& backup)
{
    return {upgrading,
            QStringLiteral("Your family file held things for which family files have no place:\n\n%1\n\n"
                           "They are still in its backup, '%2'. To use it, you will have to change its extension to "
                           "\".kvf\".")
                .arg(Listed(things), QDir::toNativeSeparators(backup)),
            Icon::Warning};
}

} // namespace stemwright::upgrademessages
