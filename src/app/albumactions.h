// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

/// The menus and the toolbar of the main window as data: captions, icons, shortcuts, in their order, and when each is
/// enabled. What the actions do is the window's. Nothing here fails.
namespace stemwright
{

/// What the main window is at.
enum class AlbumState { NoFile, EmptyList, Browsing, Editing };

struct AlbumActions {
    /// Fills the window's menu bar and adds its toolbar. `icons` is the folder of the drawings.
    AlbumActions(QMainWindow& window, const QString& icons);

    // File
    QAction* mnuNew;
    QAction* mnuOpen;
    QMenu* mnuRecent;
    QAction* mnuSaveAs;
    QAction* mnuExportTabletoText;
    QAction* mnuImportGedcom;
    QAction* mnuPreV2;
    QAction* mnuProperties;
    QAction* mnuExit;
    // Edit
    QAction* mnuContEdit;
    // Pictures
    QAction* mnuAddPicRec;
    QAction* mnuEditPicRec;
    QAction* mnuDelPicRec;
    QAction* mnuApply;
    QAction* mnuQueries;
    QAction* mnuFind;
    QAction* mnuMatchNames;
    QAction* mnuThumbView;
    // Web
    QAction* mnuCreateWebPages;
    QAction* mnuViewWebPages;
    QAction* mnuUploadWebPages;
    // Help
    QAction* mnuHelp;
    QAction* mnuAbout;
    // Toolbar only
    QAction* actFirst;
    QAction* actPrevious;
    QAction* actNext;
    QAction* actLast;
    QAction* actRunQuery;

    QToolBar* toolbar;

    /// Enables what can be done now. `row` is the current one of `rows` pictures.
    void enable(AlbumState now, int row, int rows) const;

    /// Whether there are names of an old album, which can be matched while nothing else is at work.
    void setHasOldNames(bool has) { m_hasOldNames = has; }

private:
    bool m_hasOldNames = false;
};

} // namespace stemwright
