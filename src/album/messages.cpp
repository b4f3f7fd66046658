// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/messages.h"

#include <QtCore/QDir>

namespace stemwright::albummessages
{

namespace
{

const QString tooLarge = QStringLiteral("Picture Too Large");

} // namespace

FileRequest OpenPicture()
{
    return {QStringLiteral("Open Picture"), FilePurpose::Open, {QStringLiteral("Pictures (*.gif; *.jpg)")}, {}, {}};
}

Message PictureRefused(qint64 kilobytes)
{
    return {tooLarge,
            QStringLiteral("Your picture file size is %1 kilobytes (KB).  It exceeds the allowed maximum of 200 KB. "
                           "Please downsize your picture and retry.")
                .arg(kilobytes),
            Icon::Critical};
}

Message PictureWithoutThumbnail(qint64 kilobytes)
{
    return {tooLarge,
            QStringLiteral("Your picture size is %1 kilobytes (KB). We don't recommend using files larger than 120 KB. "
                           "In particular, Stemwright won't be able to create a thumbnail for this picture. \n\n"
                           "We strongly suggest you to downsize your picture.\n\n"
                           "If nevertheless you want to go on with this file, click OK. Otherwise, click Cancel.")
                .arg(kilobytes),
            Icon::Warning,
            {Button::Ok, Button::Cancel},
            Button::Cancel};
}

Message CannotUsePicture(const QString& path, const QString& reason)
{
    return {QStringLiteral("Open Picture"),
            QStringLiteral("Cannot use picture file %1.\n%2").arg(QDir::toNativeSeparators(path), reason),
            Icon::Critical};
}

Message ConfirmRecordDelete()
{
    return {QStringLiteral("Confirm Record Delete"),
            QStringLiteral("Delete the selected record? \n\nNote: all information in that record will be destroyed,\n"
                           "and you won't be able to recover it."),
            Icon::Critical,
            {Button::Yes, Button::No},
            Button::No};
}

InputRequest SearchByPictureId()
{
    return {QStringLiteral("Search by picture ID"), QStringLiteral("Enter an ID and click OK:"), {}};
}

Message IllegalPictureId()
{
    return {QStringLiteral("Illegal picture ID"),
            QStringLiteral("Please enter an integer number."),
            Icon::Critical,
            {Button::Retry, Button::Cancel},
            Button::Cancel};
}

Message NoSuchPicture(const QString& queryName, const QString& number)
{
    return {QStringLiteral("No such picture"),
            QStringLiteral("This picture list (selected by query '%1') does not contain picture ID %2.")
                .arg(queryName, number),
            Icon::Warning};
}

Message ConfirmDuplicateEntry()
{
    return {QStringLiteral("Confirm Duplicate Entry"),
            QStringLiteral("This individual already features in the picture.\n"
                           "Do you want to add her/him nevertheless? \n"),
            Icon::Question,
            {Button::Yes, Button::No},
            Button::No};
}

Message ChangePointerToArrow()
{
    return {QStringLiteral("Change Pointer to Arrow?"),
            QStringLiteral("If you change from rectangle to arrow, all \n"
                           "rectangle width and height settings for this picture will be lost.\n\n"
                           "Click OK to change the pointer to arrow, Cancel otherwise."),
            Icon::Question,
            {Button::Ok, Button::Cancel},
            Button::Cancel};
}

Message SavingTheChanges()
{
    return {
        QStringLiteral("Saving the changes"),
        QStringLiteral("You were in the process of adding or modifying a record. Do you want to save your changes?"),
        Icon::Question,
        {Button::Yes, Button::No, Button::Cancel},
        Button::Cancel};
}

Message ReplaceFile(const QString& path)
{
    return {QStringLiteral("Extract Picture"),
            QStringLiteral("File %1 exists already. Do you want to replace it?").arg(QDir::toNativeSeparators(path)),
            Icon::Question,
            {Button::Yes, Button::No},
            Button::No};
}

} // namespace stemwright::albummessages
