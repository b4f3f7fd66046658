// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "queries/messages.h"

namespace stemwright::querymessages
{

QString QueryListExplanation()
{
    return QStringLiteral("A picture list query allows you to control the contents and the "
                          "appearance of the picture list.\n"
                          "You can decide what columns to show in the list. You can also filter the list, "
                          "i.e. display only pictures satisfying some criteria. "
                          "For example, you can list only those pictures, which are "
                          "taken before a given date and show a given person.");
}

QString QueryEditorExplanation()
{
    return QStringLiteral("Use 'Display' column to select what items will be shown in the list. "
                          "Use 'Filter' and 'Selection Criteria' to show only some of your picture records."
                          "Check 'Filter' to enable picture selection by person present in the picture. "
                          "Click 'Index' to select that person. You can also include that person's ancestors "
                          "descendants.");
}

Message NoQueryName()
{
    return {QStringLiteral("No Query Name"), QStringLiteral("Please provide a name for the new query"), Icon::Critical};
}

Message DuplicateQueryName(const QString& name)
{
    return {QStringLiteral("Duplicate query name"),
            QStringLiteral("You have already a query named \"%1\".\nPlease select another name.").arg(name),
            Icon::Critical};
}

Message ConfirmQueryDelete(const QString& name)
{
    return {QStringLiteral("Confirm Query Delete"),
            QStringLiteral("You are about to delete query \"%1\".\n"
                           "If you click Yes, you won't be able to undo this Delete operation.\n"
                           "Are you sure you want to delete this query?")
                .arg(name),
            Icon::Warning,
            {Button::Yes, Button::No},
            Button::No};
}

InputRequest NewNameOfQuery()
{
    return {QStringLiteral("Renaming Query"), QStringLiteral("Type the new name of the query"), {}};
}

Message QueryFailed(const QString& reason)
{
    return {QStringLiteral("Picture List Query"), reason, Icon::Critical};
}

Message NoNameIndex()
{
    return {{},
            QStringLiteral("The index of names does not exist. It will be generated when you  import a GEDCOM file."),
            Icon::Warning};
}

Message LoseChanges()
{
    return {{},
            QStringLiteral("You are about to lose all changes you have made in this query.\n"
                           "Click Yes to cancel all changes, otherwise click No, then Save."),
            Icon::Warning,
            {Button::Yes, Button::No},
            Button::No};
}

Message CannotFindQuery(const QString& wanted, const QString& used)
{
    return {{},
            QStringLiteral("Cannot find picture list query '%1'. Using query '%2'.\n"
                           "Use Picture List > Queries to set up and run other queries.")
                .arg(wanted, used),
            Icon::Warning};
}

Message ListFailed(const QString& reason)
{
    return {QStringLiteral("Picture List"), reason, Icon::Critical};
}

} // namespace stemwright::querymessages
