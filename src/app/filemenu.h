// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"
#include "store/file/familyfile.h"

#include <QtCore/QObject>

class QWidget;

/// The family file that the main window has open, and the ways in which it comes to be open: created, opened, the
/// sample, one of the last ones, or what the welcome window leads to. Nothing here fails; what the procedures have to
/// say they say themselves. Stands on the flows of family files.
namespace stemwright
{

struct AlbumActions;

class FileMenu : public QObject
{
    Q_OBJECT

public:
    /// Serves the entries of the File menu that concern whole family files. `mayLeave` is asked before the open file is
    /// left. All must outlive the menu.
    FileMenu(AlbumActions& actions, Environment& environment, std::function<bool()> mayLeave, QWidget* window);

    FamilyFile& file() { return m_file; }

    const FamilyFile& file() const { return m_file; }

    /// Opens the family file that the program was started with, or the last one; without any, or where that does not
    /// open, the welcome window offers what to do.
    void start(const QString& fileArgument);

Q_SIGNALS:
    /// Another family file is open.
    void opened();

private:
    void createFile();
    void openFile();
    void openThis(const QString& path);
    void openSample();
    void saveAs();
    void welcome();
    void fillRecentFiles();

    AlbumActions& m_actions;
    Environment& m_environment;
    std::function<bool()> m_mayLeave;
    QWidget* m_window;
    FamilyFile m_file;
};

} // namespace stemwright
