// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/messages.h"

#include <QtCore/QDir>

namespace stemwright::webmessages
{

namespace
{

QString Native(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

/// A list that a message has room for.
QString FirstOf(const QStringList& all)
{
    constexpr qsizetype most = 10;
    QStringList first = all.first(std::min(all.size(), most));
    if (all.size() > most) {
        first << QStringLiteral("...");
    }
    return first.join(QStringLiteral(", "));
}

const QString supportAddress = QStringLiteral("support@stemwright.example");

} // namespace

QString BuildingWebPages()
{
    return QStringLiteral("Building Web Pages");
}

QString SavingTheSetup()
{
    return QStringLiteral("Saving the setup...");
}

QString Initializing()
{
    return QStringLiteral("Initializing...");
}

QString PreparingTheOutputFolder()
{
    return QStringLiteral("Preparing the output folder...");
}

QString LoadingPictures()
{
    return QStringLiteral("Loading the pictures into memory...");
}

QString CopyingStandardFiles()
{
    return QStringLiteral("Copying standard files to output folder...");
}

QString LoadingIndividuals()
{
    return QStringLiteral("Loading the list of individuals...");
}

QString BuildingTheTrees()
{
    return QStringLiteral("Building the family trees...");
}

QString EntryOf(const QString& display, const QString& headName)
{
    return QStringLiteral("%1 for: %2. Entry of:").arg(display, headName);
}

QString CollapsiTreeFor(const QString& headName)
{
    return QStringLiteral("CollapsiTree for: %1").arg(headName);
}

QString BuildingIndex()
{
    return QStringLiteral("Building index of names:");
}

QString BuildingIndexAndPersonalPages()
{
    return QStringLiteral("Building index of names and personal pages:");
}

QString ProcessingPicture()
{
    return QStringLiteral("Processing picture:");
}

QString WritingCommonPages()
{
    return QStringLiteral("Writing the list of trees and the common pages...");
}

Message OutputFolderDoesNotExist(const QString& folder)
{
    return {{},
            QStringLiteral("The output folder %1 does not exist.\n\nClick OK to create the folder, Cancel otherwise.")
                .arg(Native(folder)),
            Icon::Question,
            {Button::Ok, Button::Cancel},
            Button::Ok};
}

Message CannotCreateFolder(const QString& folder)
{
    return {{},
            QStringLiteral("Cannot create folder %1\n\nClick OK, then click < Back and provide a different path.")
                .arg(Native(folder)),
            Icon::Critical};
}

Message OutputFolderHoldsFiles(const QString& folder)
{
    return {{},
            QStringLiteral("There are already some files in the output folder %1\n\n"
                           "Click OK to delete all those files, Cancel otherwise.")
                .arg(Native(folder)),
            Icon::Question,
            {Button::Ok, Button::Cancel},
            Button::Cancel};
}

QString NoOutputFolder()
{
    return QStringLiteral("The setup names no output folder. Please choose the folder for the web pages.");
}

QString IsNotAFullPath(const QString& folder)
{
    return QStringLiteral("The output folder %1 is not the full path of a folder on this computer. Please choose a new"
                          " folder for the web pages.")
        .arg(folder);
}

QString IsNotAFolder(const QString& path)
{
    return QStringLiteral("The output folder %1 is a file. Please choose another folder.").arg(Native(path));
}

QString IsNotWritable(const QString& path)
{
    return QStringLiteral("Nothing can be written into %1. Please choose another folder.").arg(Native(path));
}

QString HoldsOtherFiles(const QString& folder, const QString& example)
{
    return QStringLiteral("%1 holds files that are no part of a site, %2 for example. They will be deleted when the "
                          "pages are built. Please choose a folder that holds nothing but the site.")
        .arg(Native(folder), example);
}

QString IsRootFolder(const QString& folder)
{
    return QStringLiteral("%1 is the root of the file system. Please choose a folder that holds nothing but the site.")
        .arg(Native(folder));
}

QString HoldsHomeFolder(const QString& folder)
{
    return QStringLiteral("The output folder %1 is or holds your home folder. Please choose a folder that holds nothing"
                          " but the site.")
        .arg(Native(folder));
}

QString HoldsFamilyFile(const QString& folder)
{
    return QStringLiteral("The output folder %1 holds a family file or a backup of one. Please choose a folder that"
                          " holds nothing but the site.")
        .arg(Native(folder));
}

QString IsApplicationFolder(const QString& folder)
{
    return QStringLiteral("The output folder %1 is or holds a part of Stemwright itself. Please choose another folder.")
        .arg(Native(folder));
}

QString CannotDeleteFile(const QString& path)
{
    return QStringLiteral("Cannot delete file %1.").arg(Native(path));
}

QString CannotCreateGraphicsFolder(const QString& folder)
{
    return QStringLiteral("Cannot create folder %1.").arg(Native(folder));
}

Message FamilylessAncestor(const QString& name)
{
    return {QStringLiteral("Family-less Ancestor"),
            QStringLiteral("Can't build the tree because the selected ancestor, %1\nhas no families. \n"
                           "Click OK to continue building web pages, Cancel to abort the operation")
                .arg(name),
            Icon::Warning,
            {Button::Ok, Button::Cancel},
            Button::Cancel};
}

Message MissingFamilyRecord(int familyId)
{
    return {QStringLiteral("Missing family record"),
            QStringLiteral("Error: Could not find family record # %1\nPlease check your GEDCOM file for line\n"
                           "0 @F%1@ FAM\nIf that line is missing, then your GEDCOM file is corrupt "
                           "and you must re-create it; otherwise please email that file to %2")
                .arg(familyId)
                .arg(supportAddress),
            Icon::Warning};
}

Message MoreMissingFamilyRecords(std::size_t count)
{
    return {QStringLiteral("Missing family record"),
            QStringLiteral("%1 more family records could not be found.").arg(count), Icon::Warning};
}

QString NoSuchTreeHead(const QString& headName, int id)
{
    return QStringLiteral("The tree head %1 (number %2) is not in the family tree. Please choose another tree head.")
        .arg(headName)
        .arg(id);
}

Message TextsLeftOut(const std::vector<int>& pictures)
{
    QStringList numbers;
    for (const int picture : pictures) {
        numbers << QString::number(picture);
    }
    return {QStringLiteral("Hidden persons in picture texts"),
            QStringLiteral("Texts of %1 of the published pictures seem to name a person who is hidden on this site."
                           "\nThese titles, places or descriptions were left out. Picture ID: %2")
                .arg(pictures.size())
                .arg(FirstOf(numbers)),
            Icon::Warning};
}

Message FactsLeftOut(const QStringList& persons)
{
    return {QStringLiteral("Hidden persons in facts"),
            QStringLiteral("Facts of %1 of the published persons seem to name a person who is hidden on this site."
                           "\nThese dates, places or other texts were left out. Persons: %2")
                .arg(persons.size())
                .arg(FirstOf(persons)),
            Icon::Warning};
}

Message PossiblyLiving(const QStringList& persons)
{
    return {QStringLiteral("Possibly living persons"),
            QStringLiteral("%1 of the published persons may be living. They have neither a date nor a place of death, "
                           "and dates of birth that do not end in the year, so that their age is not known.\nTo hide "
                           "them, correct these dates in your genealogy program and import the tree again. Persons: "
                           "%2")
                .arg(persons.size())
                .arg(FirstOf(persons)),
            Icon::Warning};
}

Message ProtectedHeads(const QStringList& persons)
{
    return {QStringLiteral("Protected tree heads"),
            QStringLiteral("The head of a tree is always shown, also on a site that hides privacy-protected persons."
                           "\nTo leave somebody out, choose another head for the tree. Protected heads: %1")
                .arg(FirstOf(persons)),
            Icon::Warning};
}

Message ProposeTreeHead(const QString& name, int id, std::size_t descendants)
{
    return {
        QStringLiteral("No tree head"),
        QStringLiteral("The family tree to publish has no head yet. The individual with the most descendants (%3) is"
                       " %1, number %2.\nClick Yes to make this individual the tree head.")
            .arg(name)
            .arg(id)
            .arg(descendants),
        Icon::Question,
        {Button::Yes, Button::No},
        Button::No};
}

QString NoTreeHeadChosen(const QString& setupName)
{
    return QStringLiteral("Nothing was published, because setup \"%1\" has a tree without a head. Please name the"
                          " individual with --head, or answer the question with Yes (--yes).")
        .arg(setupName);
}

QString NoFamilies()
{
    return QStringLiteral("Nothing was published, because no individual is linked to a family as husband or wife: there"
                          " is no tree to draw. Please let your genealogy program export the family tree with its"
                          " families and complete links (FAMS lines), and import it again.");
}

QString TreesHaveHeads(const QString& setupName)
{
    return QStringLiteral("All trees of setup \"%1\" have other heads already. Please change them with setup tree.")
        .arg(setupName);
}

Message WebPagesCreated(const QString& folder)
{
    const auto [viewing, place, opening] = WebPagesCreatedTexts(folder);
    return {QStringLiteral("Web Pages Created"), viewing + QStringLiteral("\n\n") + place + u'\n' + opening,
            Icon::Information};
}

std::array<QString, 3> WebPagesCreatedTexts(const QString& folder)
{
    return {QStringLiteral("Your web pages have been created. To view them, click 'View My Web Pages'"),
            QStringLiteral("Alternatively, you can open Windows Explorer, navigate to folder:\n%1").arg(Native(folder)),
            QStringLiteral("and double-click index.html.")};
}

Message BuildStopped(StoppedSite site)
{
    return {BuildingWebPages(),
            QStringLiteral("Building your web pages was stopped. ") +
                (site == StoppedSite::AsBefore ? QStringLiteral("What is in the output folder stayed as it was.")
                                               : QStringLiteral("What is in the output folder is only a part of them: "
                                                                "please build them again before you use them.")),
            Icon::Warning};
}

Message CannotBuild(const QString& reason)
{
    return {BuildingWebPages(), reason, Icon::Critical};
}

} // namespace stemwright::webmessages
