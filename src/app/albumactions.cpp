// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/albumactions.h"

#include <QtGui/QAction>
#include <QtGui/QIcon>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

namespace stemwright
{

namespace
{

/// Makes the actions of one window, each with its object name.
class Maker
{
public:
    Maker(QMainWindow& window, const QString& icons) : m_window(window), m_icons(icons) {}

    QAction* operator()(const char* name, const QString& caption, const QKeySequence& shortcut = {},
                        const QString& icon = {}) const
    {
        auto* action = new QAction(caption, &m_window);
        action->setObjectName(QLatin1StringView(name));
        action->setShortcut(shortcut);
        if (!icon.isEmpty()) {
            action->setIcon(QIcon(m_icons + u'/' + icon + QStringLiteral(".svg")));
        }
        // Actions of the toolbar alone have to be heard as well.
        m_window.addAction(action);
        return action;
    }

private:
    QMainWindow& m_window;
    QString m_icons;
};

QMenu* AddMenu(QMainWindow& window, const QString& caption, std::initializer_list<QAction*> actions)
{
    QMenu* menu = window.menuBar()->addMenu(caption);
    for (QAction* action : actions) {
        action != nullptr ? menu->addAction(action) : static_cast<void>(menu->addSeparator());
    }
    return menu;
}

QString Caption(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

AlbumActions::AlbumActions(QMainWindow& window, const QString& icons)
{
    const Maker make(window, icons);
    mnuNew = make("mnuNew", Caption("&New Family File..."), QKeySequence::New, Caption("new"));
    mnuOpen = make("mnuOpen", Caption("&Open Family File..."), QKeySequence::Open, Caption("open"));
    mnuSaveAs = make("mnuSaveAs", Caption("Save Family File &As..."), Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    mnuExportTabletoText = make("mnuExportTabletoText", Caption("Expor&t Table to Text File..."));
    mnuImportGedcom = make("mnuImportGedcom", Caption("Import &GEDCOM file..."));
    mnuPreV2 = make("mnuPreV2", Caption("Import &Pre-V2 Photo Album..."));
    mnuProperties = make("mnuProperties", Caption("Propert&ies"));
    mnuExit = make("mnuExit", Caption("E&xit"), Qt::CTRL | Qt::Key_Q);
    mnuContEdit = make("mnuContEdit", Caption("&Contact Info..."));
    mnuAddPicRec = make("mnuAddPicRec", Caption("&Add Picture Record"), Qt::Key_Insert, Caption("addpicrec"));
    mnuEditPicRec = make("mnuEditPicRec", Caption("&Edit Picture Record"), Qt::Key_F2, Caption("editpicrec"));
    mnuDelPicRec = make("mnuDelPicRec", Caption("&Delete Picture Record"), QKeySequence::Delete, Caption("delpicrec"));
    mnuApply = make("mnuApply", Caption("Appl&y Changes"), QKeySequence::Save);
    mnuQueries = make("mnuQueries", Caption("Picture List &Queries..."));
    mnuFind = make("mnuFind", Caption("&Find Picture by ID..."), QKeySequence::Find);
    mnuMatchNames = make("mnuMatchNames", Caption("&Match Old Album Names..."));
    mnuThumbView = make("mnuThumbView", Caption("&Thumb View"), Qt::CTRL | Qt::Key_T, Caption("togglethumbs"));
    mnuThumbView->setCheckable(true);
    mnuCreateWebPages = make("mnuCreateWebPages", Caption("Create &Web Pages..."), {}, Caption("createwebpages"));
    mnuViewWebPages = make("mnuViewWebPages", Caption("&View My Web Pages..."), {}, Caption("viewwebpages"));
    mnuUploadWebPages = make("mnuUploadWebPages", Caption("&Upload Web Pages..."));
    mnuHelp = make("mnuHelp", Caption("&Help"), QKeySequence::HelpContents);
    mnuAbout = make("mnuAbout", Caption("&About Stemwright"));
    actFirst = make("first", Caption("First Picture"), Qt::CTRL | Qt::Key_Home, Caption("first"));
    actPrevious = make("previous", Caption("Previous Picture"), Qt::Key_PageUp, Caption("previous"));
    actNext = make("next", Caption("Next Picture"), Qt::Key_PageDown, Caption("next"));
    actLast = make("last", Caption("Last Picture"), Qt::CTRL | Qt::Key_End, Caption("last"));
    actRunQuery = make("runquery", Caption("Run Query"), Qt::Key_F5, Caption("runquery"));

    QMenu* file = AddMenu(window, Caption("&File"),
                          {mnuNew, mnuOpen, mnuSaveAs, nullptr, mnuExportTabletoText, mnuImportGedcom, mnuPreV2,
                           nullptr, mnuProperties, mnuExit});
    mnuRecent = new QMenu(Caption("&Recent Family Files"), file);
    mnuRecent->setObjectName(Caption("mnuRecent"));
    file->insertMenu(mnuSaveAs, mnuRecent);
    AddMenu(window, Caption("&Edit"), {mnuContEdit});
    AddMenu(window, Caption("&Pictures"),
            {mnuAddPicRec, mnuEditPicRec, mnuDelPicRec, mnuApply, nullptr, mnuQueries, mnuFind, mnuMatchNames, nullptr,
             mnuThumbView});
    AddMenu(window, Caption("&Web"), {mnuCreateWebPages, mnuViewWebPages, mnuUploadWebPages});
    AddMenu(window, Caption("&Help"), {mnuHelp, mnuAbout});

    toolbar = window.addToolBar(Caption("Toolbar"));
    toolbar->setObjectName(Caption("tlbMain"));
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    for (QAction* action : {mnuNew, mnuOpen, static_cast<QAction*>(nullptr), actFirst, actPrevious, actNext, actLast,
                            static_cast<QAction*>(nullptr), mnuThumbView, static_cast<QAction*>(nullptr), mnuAddPicRec,
                            mnuEditPicRec, mnuDelPicRec, static_cast<QAction*>(nullptr), mnuCreateWebPages,
                            mnuViewWebPages, static_cast<QAction*>(nullptr)}) {
        action != nullptr ? toolbar->addAction(action) : static_cast<void>(toolbar->addSeparator());
    }
}

void AlbumActions::enable(AlbumState now, int row, int rows) const
{
    const auto set = [](std::initializer_list<QAction*> actions, bool enabled) {
        for (QAction* action : actions) {
            action->setEnabled(enabled);
        }
    };
    const bool browsing = now == AlbumState::Browsing;
    set({mnuSaveAs, mnuProperties}, now != AlbumState::NoFile);
    set({mnuImportGedcom, mnuPreV2, mnuAddPicRec, mnuQueries, mnuContEdit, actRunQuery, mnuExportTabletoText,
         mnuCreateWebPages, mnuViewWebPages, mnuUploadWebPages},
        browsing || now == AlbumState::EmptyList);
    set({mnuEditPicRec, mnuDelPicRec, mnuFind, mnuThumbView}, browsing);
    set({actFirst, actPrevious}, browsing && row > 0);
    set({actNext, actLast}, browsing && row < rows - 1);
    set({mnuMatchNames}, m_hasOldNames && (browsing || now == AlbumState::EmptyList));
    set({mnuApply}, now == AlbumState::Editing);
}

} // namespace stemwright
