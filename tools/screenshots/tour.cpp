// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "tour.h"

#include "app/common/progresswindow.h"
#include "app/frmabout.h"

#include <QtGui/QAction>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright::screenshots
{

namespace
{

/// Where the pictures say that the files are: the folders of the machine that takes them are nobody's business.
QString ShownPath(const char* file)
{
    return QStringLiteral("/media/molly/Album/") + QLatin1StringView(file);
}

/// The row of a list whose first cell has this text; the first when none has.
int RowOf(const QAbstractItemModel& model, const QString& text)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            if (model.index(row, column).data().toString() == text) {
                return row;
            }
        }
    }
    return 0;
}

} // namespace

Tour::Tour(frmAlbum& window, Environment& environment, Camera& camera, QString tree)
    : m_window(window), m_environment(environment), m_camera(camera), m_tree(std::move(tree))
{
}

void Tour::trigger(const char* action)
{
    control<QAction>(m_window, action).trigger();
}

void Tour::press(QWidget& window, const char* button)
{
    control<QAbstractButton>(window, button).click();
}

void Tour::start()
{
    auto* splash = new frmSplash(m_environment.application);
    splash->show();
    m_camera.take(*splash, QStringLiteral("frmsplash"));
    splash->close();
    m_camera.takeModal(QStringLiteral("frmWelcome"), [this] { m_window.start({}); });
    m_camera.take(m_window, QStringLiteral("frmalbum-nofile"));
}

void Tour::album(const QString& familyFile)
{
    m_window.start(familyFile);
    lists();
    record();
    queries();
    people();
    files();
    menus();
    wizard();
    webPages();
    oldAlbum();
    import();
}

void Tour::lists()
{
    auto& grid = control<QTableView>(m_window, "dtgTOC");
    grid.selectRow(RowOf(*grid.model(), QStringLiteral("Wedding of Tobias and Rosamund")));
    control<QListWidget>(m_window, "hfgPersons").setCurrentRow(0);
    m_camera.take(m_window, QStringLiteral("frmalbum"));
    trigger("mnuThumbView");
    m_camera.take(m_window, QStringLiteral("frmalbum-gallery"));
    trigger("mnuThumbView");
    m_camera.takeModal(QStringLiteral("inputBox"), [this] { trigger("mnuFind"); });
    m_camera.takeModal(QStringLiteral("messageBox"), [this] { trigger("mnuDelPicRec"); });
}

void Tour::record()
{
    trigger("mnuEditPicRec");
    m_camera.inside(
        QStringLiteral("frmDate"), [this] { press(m_window, "cmdSelectDate"); },
        [this](QWidget& window) { m_camera.take(window, QStringLiteral("frmdate")); });
    m_camera.take(m_window, QStringLiteral("frmalbum-editing"));
    press(m_window, "cmdEditName");
    m_camera.take(m_window, QStringLiteral("frmalbum-marking"));
    press(m_window, "cmdCancelName");
    press(m_window, "cmdCancel");
}

void Tour::queries()
{
    m_camera.inside(
        QStringLiteral("frmQueries"), [this] { trigger("mnuQueries"); },
        [this](QWidget& window) {
            auto& list = control<QListWidget>(window, "lstQueries");
            list.setCurrentRow(RowOf(*list.model(), QStringLiteral("Descendants of Captain Purrington")));
            m_camera.take(window, QStringLiteral("frmqueries"));
            m_camera.takeModal(QStringLiteral("frmNewQuery"), [this, &window] { press(window, "cmdNew"); });
            m_camera.takeModal(QStringLiteral("frmEditQuery"), [this, &window] { press(window, "cmdEdit"); });
        });
}

void Tour::people()
{
    const auto type = [this](QWidget& window) { control<QLineEdit>(window, "txtName").setText(QStringLiteral("Wh")); };
    trigger("mnuAddPicRec");
    m_camera.take(m_window, QStringLiteral("frmalbum-newrecord"));
    m_camera.inside(
        QStringLiteral("frmPeople"), [this] { press(m_window, "cmdShowIndex"); },
        [this, type](QWidget& window) {
            type(window);
            m_camera.take(window, QStringLiteral("frmpeople"));
        });
    press(m_window, "cmdCancel");
    m_camera.inside(
        QStringLiteral("frmIndex4Addr"), [this] { trigger("mnuContEdit"); },
        [this, type](QWidget& window) {
            control<QLineEdit>(window, "txtName").setText(QStringLiteral("Whiskerton, Alexander"));
            m_camera.takeModal(QStringLiteral("frmContactInfo"), [this, &window] { press(window, "cmdContactInfo"); });
            type(window);
            m_camera.take(window, QStringLiteral("frmindex4addr"));
        });
}

void Tour::files()
{
    m_camera.inside(
        QStringLiteral("frmExportTableAsText"), [this] { trigger("mnuExportTabletoText"); },
        [this](QWidget& window) {
            control<QLineEdit>(window, "txtOutputFilename").setText(ShownPath("Initial.txt"));
            m_camera.take(window, QStringLiteral("frmexporttableastext"));
        });
    m_camera.inside(
        QStringLiteral("frmProperties"), [this] { trigger("mnuProperties"); },
        [this](QWidget& window) {
            control<QLabel>(window, "lblPath").setText(ShownPath("Whiskerton.kvf"));
            control<QLabel>(window, "lblGedcom").setText(ShownPath("felinity.ged"));
            m_camera.take(window, QStringLiteral("frmproperties"));
        });
    m_camera.takeModal(QStringLiteral("frmAbout"), [this] { trigger("mnuAbout"); });
}

/// The names are those that the family file was given beforehand.
void Tour::oldAlbum()
{
    m_camera.inside(
        QStringLiteral("frmImpPreV2Album"), [this] { trigger("mnuPreV2"); },
        [this](QWidget& window) {
            control<QLineEdit>(window, "txtInputFilename").setText(ShownPath("Old Album.mdb"));
            m_camera.take(window, QStringLiteral("frmimpprev2album"));
        });
    const auto matching = [this](QWidget& window) {
        m_camera.take(window, QStringLiteral("frmmatchingnames"));
        press(window, "cmdNext");
        m_camera.take(window, QStringLiteral("frmmatchingnames-none"));
        const auto stop = [](QWidget& box) { static_cast<QMessageBox&>(box).button(QMessageBox::Yes)->click(); };
        m_camera.inside(
            QStringLiteral("messageBox"), [this, &window] { press(window, "cmdCancel"); }, stop);
    };
    m_camera.inside(
        QStringLiteral("frmIndisInOldAlbum"), [this] { trigger("mnuMatchNames"); },
        [this, matching](QWidget& window) {
            m_camera.take(window, QStringLiteral("frmindisinoldalbum"));
            m_camera.inside(
                QStringLiteral("frmMatchingNames"), [this, &window] { press(window, "cmdMatch"); }, matching);
        });
}

/// The import is done to its end: file, questions, report.
void Tour::import()
{
    {
        ProgressWindow progress(QStringLiteral("Importing GEDCOM file"), QStringLiteral("Reading individuals..."),
                                &m_window);
        progress.setPercent(60);
        m_camera.take(*QApplication::activeModalWidget(), QStringLiteral("frmprogress"));
    }
    const QString box = QStringLiteral("messageBox");
    const auto accept = [](QWidget& window) { static_cast<QDialog&>(window).accept(); };
    const auto report = [this](QWidget& window) { m_camera.take(window, QStringLiteral("frmimportreport")); };
    // The sample was made of a file of this name in another folder.
    const auto conflict = [this, report](QWidget& window) {
        m_camera.take(window, QStringLiteral("importing-conflict"));
        const auto yes = [&window] { static_cast<QMessageBox&>(window).button(QMessageBox::Yes)->click(); };
        m_camera.inside(QStringLiteral("frmImportReport"), yes, report);
    };
    const auto backup = [this, box, accept, conflict](QWidget& window) {
        m_camera.take(window, QStringLiteral("importing-backup"));
        m_camera.inside(
            box, [accept, &window] { accept(window); }, conflict);
    };
    m_camera.inside(
        QStringLiteral("fileDialog"), [this] { trigger("mnuImportGedcom"); },
        [this, box, accept, backup](QWidget& window) {
            control<QLineEdit>(window, "fileNameEdit").setText(m_tree);
            m_camera.inside(
                box, [accept, &window] { accept(window); }, backup);
        });
}

void Tour::menus()
{
    for (QAction* entry : m_window.menuBar()->actions()) {
        QString name = entry->text().toLower();
        name.remove(u'&');
        entry->menu()->popup(m_window.pos());
        m_camera.take(*entry->menu(), QStringLiteral("menu-") + name);
        entry->menu()->close();
    }
}

} // namespace stemwright::screenshots
