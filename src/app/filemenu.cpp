// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/filemenu.h"

#include "app/albumactions.h"
#include "app/frmwelcome.h"
#include "store/file/fileflows.h"
#include "store/file/messages.h"

#include <QtCore/QDir>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace stemwright
{

FileMenu::FileMenu(AlbumActions& actions, Environment& environment, std::function<bool()> mayLeave, QWidget* window)
    : QObject(window), m_actions(actions), m_environment(environment), m_mayLeave(std::move(mayLeave)), m_window(window)
{
    connect(actions.mnuNew, &QAction::triggered, this, &FileMenu::createFile);
    connect(actions.mnuOpen, &QAction::triggered, this, &FileMenu::openFile);
    connect(actions.mnuSaveAs, &QAction::triggered, this, &FileMenu::saveAs);
    connect(this, &FileMenu::opened, this, &FileMenu::fillRecentFiles);
    fillRecentFiles();
}

void FileMenu::start(const QString& fileArgument)
{
    const QString last = m_environment.settings.value(setting::openCreateFamFile, setting::lastFamilyFile);
    const QString path = fileArgument.isEmpty() ? last : FamilyFileOfArgument(fileArgument);
    if (!path.isEmpty()) {
        openThis(path);
    }
    if (!m_file.isOpen()) {
        welcome();
    }
}

void FileMenu::welcome()
{
    switch (AskAtWelcome(*m_window)) {
    case WelcomeChoice::Create:
        createFile();
        break;
    case WelcomeChoice::Open:
        openFile();
        break;
    case WelcomeChoice::Cats:
        openSample();
        break;
    case WelcomeChoice::None:
        break;
    }
}

void FileMenu::createFile()
{
    if (!m_mayLeave()) {
        return;
    }
    const auto path = m_environment.talk.chooseFile(storemessages::ChooseNewFamilyFile());
    if (path && CreateNewFamilyFile(m_file, *path, m_environment)) {
        Q_EMIT opened();
    }
}

void FileMenu::openFile()
{
    if (!m_mayLeave()) {
        return;
    }
    if (const auto path = m_environment.talk.chooseFile(storemessages::ChooseFamilyFile())) {
        openThis(*path);
    }
}

void FileMenu::openThis(const QString& path)
{
    if (m_mayLeave() && OpenAlbum(m_file, path, m_environment)) {
        Q_EMIT opened();
    }
}

void FileMenu::openSample()
{
    if (m_mayLeave() && OpenTestDB(m_file, m_environment)) {
        Q_EMIT opened();
    }
}

void FileMenu::saveAs()
{
    if (!m_mayLeave()) {
        return;
    }
    if (const auto path = m_environment.talk.chooseFile(storemessages::ChooseCopy())) {
        SaveFamilyFileAs(m_file, *path, m_environment);
    }
}

void FileMenu::fillRecentFiles()
{
    m_actions.mnuRecent->clear();
    int number = 0;
    for (const QString& path : RecentFamilyFiles(m_environment.settings)) {
        QString caption = QDir::toNativeSeparators(path);
        caption.replace(u'&', QStringLiteral("&&"));
        QAction* action = m_actions.mnuRecent->addAction(QStringLiteral("&%1  %2").arg(++number % 10).arg(caption));
        connect(action, &QAction::triggered, this, [this, path] { openThis(path); });
    }
    m_actions.mnuRecent->setEnabled(number > 0);
}

} // namespace stemwright
