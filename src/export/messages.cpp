// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "export/messages.h"

#include <QtCore/QDir>

namespace stemwright::exportmessages
{

namespace
{

/// A question whose safe answer is Cancel.
Message Question(const QString& title, const QString& text)
{
    return {title, text, Icon::Question, {Button::Ok, Button::Cancel}, Button::Cancel};
}

} // namespace

QString Explanation(const QString& queryName)
{
    return QStringLiteral("You are about to export the table created by query '%1' to a text file.\n"
                          "Each row will be exported as a line in the output file; "
                          "the columns will be separated by a character of your choice."
                          "Such text file can be easily imported into a spreadsheet "
                          "program, such as Microsoft® Excel.")
        .arg(queryName);
}

FileRequest ChooseOutputFile()
{
    return {QStringLiteral("Select GEDCOM file"), FilePurpose::Save, {QStringLiteral("Text File (*.txt)")}, {}, {}};
}

Message NoSuchFolder(const QString& folder)
{
    return Question(QStringLiteral("No such folder"),
                    QStringLiteral("The output folder %1 does not exist.\nClick OK to create, Cancel to quit.")
                        .arg(QDir::toNativeSeparators(folder)));
}

Message CannotCreateFolder(const QString& folder)
{
    return {QStringLiteral("Cannot create folder"),
            QStringLiteral("Cannot create folder %1\nClick OK and provide a different path.")
                .arg(QDir::toNativeSeparators(folder)),
            Icon::Critical};
}

Message FileExists(const QString& path)
{
    return Question(QStringLiteral("File exists"), QStringLiteral("The output file %1 already exists.\n"
                                                                  "Click OK to overwrite, Cancel to select another "
                                                                  "filename.")
                                                       .arg(QDir::toNativeSeparators(path)));
}

Message TooManyColumns()
{
    return {{},
            QStringLiteral("Internal error: Number of fields to export exceeds total number of fields"),
            Icon::Critical};
}

Message CannotWriteRow(const QString& line)
{
    return Question(QStringLiteral("Cannot write row"),
                    QStringLiteral("The program cannot write the following string \n%1\n"
                                   "because it contains characters not available on this computer. "
                                   "This can happen if your family file was created on another computer, with a "
                                   "different character set.\n"
                                   "Click OK to skip this record, Cancel to abort the export.")
                        .arg(line));
}

Message ExportFailed(const QString& reason)
{
    return {QStringLiteral("Export Table"), reason, Icon::Critical};
}

} // namespace stemwright::exportmessages
