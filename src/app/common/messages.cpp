// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/messages.h"

#include "base/version.h"

#include <QtCore/QDir>

namespace stemwright::appmessages
{

QString NoPicture()
{
    return QStringLiteral("This record has no picture.");
}

QString NoPictureYet()
{
    return QStringLiteral("Press Browse... to choose a picture, or drop a picture file here.");
}

QString EmptyList()
{
    return QStringLiteral("There is no picture in this list. Use Pictures > Add Picture Record to add one, or drop a "
                          "picture file here.");
}

QString NoFile()
{
    return QStringLiteral("No family file is open. Use File > New Family File or File > Open Family File.");
}

QString NoPictures()
{
    return QStringLiteral("No pictures");
}

QString PicturePosition(int picture, int pictures)
{
    return QStringLiteral("Picture %1 of %2").arg(picture).arg(pictures);
}

QString EditingRecord()
{
    return QStringLiteral("Editing");
}

QString CannotShowPicture(const QString& reason)
{
    return QStringLiteral("The picture cannot be shown.\n\n") + reason;
}

Message CannotEdit(const QString& reason)
{
    return {QStringLiteral("Edit Picture Record"), QStringLiteral("The record cannot be edited.\n\n") + reason,
            Icon::Critical};
}

Message CannotApply(const QString& reason)
{
    return {
        QStringLiteral("Apply"),
        QStringLiteral("The record could not be written; nothing in the family file has changed.\n\n%1").arg(reason),
        Icon::Critical};
}

Message CannotEnterName(const QString& reason)
{
    return {QStringLiteral("Persons in the Picture"), reason, Icon::Warning};
}

Message CannotDelete(const QString& reason)
{
    return {
        QStringLiteral("Delete Picture Record"),
        QStringLiteral("The record could not be deleted; nothing in the family file has changed.\n\n%1").arg(reason),
        Icon::Critical};
}

Message Failed(const QString& reason)
{
    return {{}, reason, Icon::Critical};
}

Message NotThere(const QString& path)
{
    return {{}, QStringLiteral("%1 was not found.").arg(QDir::toNativeSeparators(path)), Icon::Warning};
}

Message DropOnePicture()
{
    return {QStringLiteral("Open Picture"), QStringLiteral("Please drop one picture file (*.gif; *.jpg) at a time."),
            Icon::Information};
}

QString NameOfMany(std::size_t number, std::size_t names, std::size_t pictures)
{
    return QStringLiteral("Name %1 of %2, on %3 %4")
        .arg(number)
        .arg(names)
        .arg(pictures)
        .arg(pictures == 1 ? QStringLiteral("picture") : QStringLiteral("pictures"));
}

QString NoPictureOfName()
{
    return QStringLiteral("This name is on none of the pictures that are still in the album.");
}

QString AlbumImported(qint64 imported, qint64 inAlbum)
{
    return QStringLiteral("%1 of %2 picture records imported").arg(imported).arg(inAlbum);
}

QString TooLongForGallery()
{
    return QStringLiteral("This list is too long to be shown as thumbnails. A query with a filter makes it shorter.");
}

QString Welcome()
{
    return QStringLiteral("Welcome to Stemwright! To create a new family file, click Create. If you want to open an "
                          "existing family file, click Open. If you want to open the test file, containing an "
                          "imaginary cat family, click Cats.");
}

QString VersionText()
{
    return QStringLiteral("Version ") + QString::fromLatin1(versionText);
}

QString Purpose()
{
    return QStringLiteral("Keeps a family tree and a photo album in one file and publishes both as a web site.");
}

QString Credits()
{
    return QStringLiteral("Made by the Stemwright authors.\nFree software under the MIT licence; it comes without any "
                          "warranty.\n\nBuilt with Qt, SQLite, SQLiteCpp, CLI11, libmdb and ICU.");
}

QString SetupsExplanation()
{
    return QStringLiteral(
        "A setup describes a web site: its trees, its looks, and the folder in which it is built. Choose "
        "one and click Edit/Run, or make a new one.");
}

QString ItemsToInclude()
{
    return QStringLiteral("Items to display on personal pages and (optionally) in family tree:");
}

QString OriginOfItem(const QString& table)
{
    if (table == QStringLiteral("Fam")) {
        return QStringLiteral("Belongs to the family");
    }
    return table == QStringLiteral("Fam2Child") ? QStringLiteral("Belongs to the child in its family")
                                                : QStringLiteral("Belongs to the individual");
}

QString SelectSetupExplanation()
{
    return QStringLiteral("Choose the setup whose web pages you want to see.");
}

QString UploadExplanation()
{
    return QStringLiteral(
        "This release only collects and checks these settings: nothing is stored, and nothing is sent. "
        "To put your site on the web, copy its folder in the way that your provider describes.");
}

QString PageCannotBeShown()
{
    return QStringLiteral("The page could not be shown. Press F5 to try again.");
}

Message CannotOpenAddress(const QString& address)
{
    return {QStringLiteral("Web Browser"), QStringLiteral("No program was found that opens\n%1").arg(address),
            Icon::Information};
}

Message CannotOpenHelp(const QString& path)
{
    return {QStringLiteral("Help"),
            QStringLiteral("No program was found that shows the manual. It begins at\n%1").arg(path),
            Icon::Information};
}

} // namespace stemwright::appmessages
