// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/setup/setupmessages.h"

namespace stemwright::setupmessages
{

namespace
{

/// A question whose safe answer is No.
Message Confirmation(const QString& title, const QString& text)
{
    return {title, text, Icon::Warning, {Button::Yes, Button::No}, Button::No};
}

} // namespace

Message NoSetupName()
{
    return {QStringLiteral("No Setup Name"), QStringLiteral("Please provide a name for the new setup"), Icon::Critical};
}

Message DuplicateSetupName(const QString& name)
{
    return {QStringLiteral("Duplicate setup name"),
            QStringLiteral("You have already a setup named \"%1\".\n\nPlease select another name.").arg(name),
            Icon::Critical};
}

Message ConfirmSetupDelete(const QString& name)
{
    return Confirmation(QStringLiteral("Confirm Setup Delete"),
                        QStringLiteral("You are about to delete setup \"%1\".\n\n"
                                       "If you click Yes, you won't be able to undo this Delete operation.\n"
                                       "Are you sure you want to delete this setup?")
                            .arg(name));
}

InputRequest NewNameOfSetup()
{
    return {QStringLiteral("Renaming Setup"), QStringLiteral("Type the new name of the setup"), {}};
}

Message SetupFailed(const QString& reason)
{
    return {QStringLiteral("Web Site Setup"), reason, Icon::Critical};
}

Message LoseChanges()
{
    return Confirmation({}, QStringLiteral("You are about to lose all changes you have made in this setup.\n"
                                           "Click Yes to cancel all changes, otherwise click No, then Save."));
}

Message NoNameIndex()
{
    return {{},
            QStringLiteral("The index of names does not exist. It will be generated\nwhen you import a GEDCOM file."),
            Icon::Warning};
}

Message NoTreeHeadYet()
{
    return {QStringLiteral("No Tree Head"),
            QStringLiteral("You have not yet selected a tree head.\nClick OK, then Index and select an individual."),
            Icon::Warning};
}

Message LastTreeDefinition()
{
    return {{},
            QStringLiteral("You cannot delete the last remaining family tree definition. To change it, click Edit."),
            Icon::Critical};
}

Message DeletingFamilyTree()
{
    return Confirmation(QStringLiteral("Deleting family tree"),
                        QStringLiteral("Do you want to permanently delete the selected tree definition?\n\n"
                                       " To permanently delete it, click Yes"));
}

Message ItemAlreadyIncluded()
{
    return {QStringLiteral("Items to Include"), QStringLiteral("This item is already included."), Icon::Warning};
}

Message EmptyHomePageName()
{
    return {{},
            QStringLiteral("The homepage filename cannot be empty. "
                           "Please press OK and supply a non-empty filename."),
            Icon::Warning};
}

Message NoTreesToBuild()
{
    return {QStringLiteral("No trees to build"),
            QStringLiteral("You have not yet defined any tree to build. Please press OK and Add a tree."),
            Icon::Warning};
}

Message TreeWithoutHead()
{
    return {QStringLiteral("No tree head"),
            QStringLiteral("You have not yet selected the tree head for at least one tree. Please press OK, "
                           "and Edit or Delete that tree definion."),
            Icon::Warning};
}

Message TooFewGenerationsOnPage()
{
    return {{},
            QStringLiteral("The maximum number of generations on a page cannot be less than 2 "
                           "(we recommend 4 or 5). Please press OK, go to General tab and select a new value."),
            Icon::Warning};
}

Message NoSetupToView()
{
    return {{},
            QStringLiteral("No web site setup is currently defined. Without a setup, Stemwright does not not know "
                           "where is the web site that you want to see. To define a setup and build its pages, use "
                           "Web > Create Web Pages."),
            Icon::Warning};
}

Message PagesNotYetCreated()
{
    return {{},
            QStringLiteral("Your web pages are not yet created.  To create them, use Web > Create Web Pages."),
            Icon::Warning};
}

Message NoServerName()
{
    return {QStringLiteral("No Server Name"), QStringLiteral("Please provide an FTP server name"), Icon::Critical};
}

Message NoUsername()
{
    return {QStringLiteral("No Username"), QStringLiteral("Please provide a username"), Icon::Critical};
}

Message NoPassword()
{
    return {QStringLiteral("No Password"), QStringLiteral("Please provide a password"), Icon::Critical};
}

} // namespace stemwright::setupmessages
