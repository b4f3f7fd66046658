// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "oldalbum/messages.h"

#include "store/engine/engineerror.h"

#include <QtCore/QDir>

namespace stemwright::oldalbummessages
{

namespace
{

constexpr qsizetype listedLines = 15;
constexpr qsizetype shownOfText = 60;

/// A paragraph of a message: its heading and the first lines of a list. Empty for an empty list.
QString Paragraph(const QString& heading, const QStringList& list)
{
    if (list.isEmpty()) {
        return {};
    }
    QString text = heading + u'\n' + list.first(std::min(listedLines, list.size())).join(u'\n');
    if (list.size() > listedLines) {
        text += QStringLiteral("\nand %1 more").arg(list.size() - listedLines);
    }
    return text;
}

const QString lookUpOrQuit = QStringLiteral("To look up the name in the index, click Index. ");
const QString quitMatching = QStringLiteral("If you want to quit name matching, click Cancel.");

} // namespace

FileRequest SelectOldAlbum()
{
    return {QStringLiteral("Select Pre-V2 Photo Album"),
            FilePurpose::Open,
            {QStringLiteral("Pre-V2 Photo Album (*.mdb)"), QStringLiteral("All files (*)")},
            {},
            {}};
}

QString ImportExplanation()
{
    return QStringLiteral("This utility imports an Stemora Version 0.X or 1.X Photo Album "
                          "to your currently open family file.\n"
                          "Select here the file containg your Version 0.X or 1.X Photo Album "
                          " and press OK.");
}

Message NoFamilyFile()
{
    return {{},
            QStringLiteral("No family file is currently open. You must first open "
                           "an existing family file or create a new one."),
            Icon::Warning};
}

Message EmptyAlbum()
{
    return {{},
            QStringLiteral("The selected pre-V2 photo album contains no "
                           "pictures, hence there is nothing to import. \n\n"
                           "Click OK and select another pre-V2 photo album."),
            Icon::Warning};
}

Message NoIndividuals()
{
    return {{},
            QStringLiteral("There are no individuals in the family file, "
                           "therefore you will not be able to match the "
                           "individuals in old Photo Album with those in the "
                           "family file. We recommend that you import "
                           "a GEDCOM file first.\n\n"
                           "Click Cancel to quit the import of the pre-V2 Photo "
                           "Album or click OK to continue without matching the "
                           "individuals."),
            Icon::Question,
            {Button::Ok, Button::Cancel},
            Button::Cancel};
}

Message NamesWouldBeLost(qint64 names)
{
    return {QStringLiteral("Names Not Matched Yet"),
            QStringLiteral("%1 of the names that came with the pre-V2 photo album imported last are not marked on its "
                           "pictures yet. Importing another album with persons replaces them.\n\n"
                           "Click Cancel to keep them and match them first, or click OK to continue without them.")
                .arg(names),
            Icon::Warning,
            {Button::Ok, Button::Cancel},
            Button::Cancel};
}

Message NamesKept(qint64 names)
{
    return {
        QStringLiteral("Names Not Matched Yet"),
        QStringLiteral("No person came with this import, so the names of the pre-V2 photo album imported before were "
                       "kept: %1 of them are not marked on its pictures yet, and you can still match them.")
            .arg(names),
        Icon::Information};
}

Message DuplicatePicture(const QString& filename)
{
    return {{},
            QStringLiteral("The picture\n%1\nis already present in the current family file "
                           "and will not be added again.\n\n"
                           "Click Yes to continue receiving messages "
                           "about duplicate picture file, No to skip "
                           "future messages, or Cancel to quit the import.")
                .arg(filename),
            Icon::Question,
            {Button::Yes, Button::No, Button::Cancel},
            Button::No};
}

Message NotWhole(const AlbumImportReport& report)
{
    QStringList paragraphs = {
        Paragraph(QStringLiteral("These picture files were not found on this computer. Their records are in your album "
                                 "without the pictures, which you can add with Edit Picture Record."),
                  report.missing),
        Paragraph(QStringLiteral("These picture files cannot be used:"), report.unfit),
        Paragraph(QStringLiteral("These texts are longer than a family file takes and were cut:"), report.cut)};
    paragraphs.removeAll(QString());
    return {QStringLiteral("Pre-V2 Photo Album"), paragraphs.join(QStringLiteral("\n\n")), Icon::Warning};
}

Message ImportFailed(const QString& path, const std::exception& exception)
{
    return {{},
            QStringLiteral("The photo album %1 cannot be imported. %2 Your family file was left as it was.")
                .arg(QDir::toNativeSeparators(path), ReasonText(exception)),
            Icon::Critical};
}

QString OldNamesNote()
{
    return QStringLiteral("The following names were found in the "
                          "old album. If you want match them with the individuals in the "
                          "family file, click Match. Otherwise click Close.");
}

QString ChooseMatch()
{
    return QStringLiteral("If any of the "
                          "names in the table below matches "
                          "select that name and click Accept. If there is no "
                          "match, click Next. ") +
           lookUpOrQuit + quitMatching;
}

QString NoMatches(const QString& oldName, bool hasIndex)
{
    const QString begin = QStringLiteral("No matches for ") + oldName + QStringLiteral("\n\nClick Next to continue. ");
    return begin + (hasIndex ? lookUpOrQuit : QString()) + quitMatching;
}

Message StopMatching()
{
    return {{},
            QStringLiteral("Are you sure you want to stop name matching?\n\n"
                           "Click Yes to stop name matching, No to continue."),
            Icon::Question,
            {Button::Yes, Button::No},
            Button::No};
}

Message MatchingCompleted()
{
    return {{}, QStringLiteral("Name matching is completed. Click OK to continue."), Icon::Information};
}

Message MatchingFailed(const QString& oldName, const std::exception& exception)
{
    return {{}, QStringLiteral("%1 was not marked. %2").arg(oldName, ReasonText(exception)), Icon::Critical};
}

QString NoOldAlbum()
{
    return QStringLiteral("It is a database of another kind: a pre-V2 photo album has a table AlbumTOC with the "
                          "columns PictureFilename and Participants.");
}

QString CutText(const QString& what, const QString& text)
{
    return QStringLiteral("%1: %2...").arg(what, text.left(shownOfText).simplified());
}

} // namespace stemwright::oldalbummessages
