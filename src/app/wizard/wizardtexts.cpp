// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/wizardtexts.h"

#include <QtCore/QDir>

namespace stemwright::wizardtexts
{

QString Caption(const QString& setupName)
{
    return QStringLiteral("Create Web Pages Wizard") + QStringLiteral(" - ") + setupName;
}

QString PageName(WizardPage page)
{
    switch (page) {
    case WizardPage::Introduction:
        return QStringLiteral("Introduction");
    case WizardPage::Step1:
        return QStringLiteral("Step 1");
    case WizardPage::Step2:
        return QStringLiteral("Step 2");
    case WizardPage::FirstPage:
        return QStringLiteral("First page");
    case WizardPage::General:
        return QStringLiteral("General");
    case WizardPage::DisplayOptions:
        return QStringLiteral("Display options");
    case WizardPage::Finished:
        return QStringLiteral("Finished!");
    }
    return {};
}

QString Introduction()
{
    return QStringLiteral("This Create Web Pages Wizard will let you change your Web site setup and, after you click "
                          "Finish, will build your Web pages. \n\n"
                          "The next pages ask where the site goes, what its first page says, who is shown on it, and "
                          "how your family trees are drawn. Nothing outside your family file changes before you click "
                          "Finish.\n\n"
                          "Please click Next to begin.");
}

QString SiteKind()
{
    return QStringLiteral(
        "Is this a web site of its own, or a part of a larger one? A subsite gets a button that leads "
        "to the home page of the larger site.");
}

QString FolderHint()
{
    return QStringLiteral("Give the site a folder of its own: when pages are built, the files in it are deleted, after "
                          "asking. A folder that does not exist yet is created.");
}

QString TitleExample()
{
    return QStringLiteral("The Smiths of Ashcombe");
}

QString StoryExample()
{
    return QStringLiteral("In 1784 Thomas Smith came to Ashcombe with a horse and no money. These are his descendants, "
                          "and the pictures that we have of them.");
}

QString PrivacyRule()
{
    return QStringLiteral("A person younger than this age who is not known to be deceased is privacy-protected. When "
                          "privacy-protected persons are hidden, neither they nor their children are displayed. "
                          "Otherwise they are shown, but without the items that are marked as private.");
}

QString TreesHint()
{
    return QStringLiteral("Each tree begins with its head. Click Index to choose the person, then Apply.");
}

QString NoEmblem()
{
    return QStringLiteral("No picture");
}

QString EmblemCannotBeShown()
{
    return QStringLiteral("This picture cannot be shown here.");
}

QString SampleOfColours()
{
    return QStringLiteral("Thomas Smith\n1784 - 1851");
}

QString Finished()
{
    return QStringLiteral("The Create Web Pages Wizard has finished collecting information.");
}

QString Summary(const Setup& setup)
{
    return QStringLiteral("Folder of the web pages: %1\nFamily trees: %2")
        .arg(QDir::toNativeSeparators(setup.folder))
        .arg(setup.trees.size());
}

QString LivingAreHidden(const Setup& setup)
{
    return QStringLiteral(
               "Privacy-protected persons, those younger than %1 years who are not known to be deceased, are "
               "hidden, and so are their children. Only the head of a tree is always shown.")
        .arg(setup.maxPrivacyAge);
}

QString LivingAreShown()
{
    return QStringLiteral(
        "Living persons are shown: everybody who sees the site can read about them. To leave them out, "
        "tick \"Hide privacy-protected persons\" on the page General.");
}

QString PressFinish()
{
    return QStringLiteral("To build your web pages press Finish!");
}

FileRequest ChooseFolder(const QString& folder)
{
    return {QStringLiteral("Folder for the Web Pages"), FilePurpose::Folder, {}, folder, {}};
}

FileRequest ChooseEmblem()
{
    return {QStringLiteral("Picture of the First Page"),
            FilePurpose::Open,
            {QStringLiteral("Pictures (*.gif *.jpg *.jpeg *.png *.svg *.webp)")},
            {},
            {}};
}

} // namespace stemwright::wizardtexts
