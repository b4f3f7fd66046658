// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/frmalbum.h"

#include "album/messages.h"
#include "album/picturelist.h"
#include "app/albumactions.h"
#include "app/common/controls.h"
#include "app/common/help.h"
#include "app/common/messages.h"
#include "app/frmabout.h"
#include "app/frmexporttableastext.h"
#include "app/frmproperties.h"
#include "app/gedcomimport.h"
#include "app/oldalbum/oldalbums.h"
#include "app/pictures/picturebrowser.h"
#include "app/pictures/recordeditor.h"
#include "app/queries/frmqueries.h"
#include "app/setups/frmselectsetup.h"
#include "app/setups/frmsetups.h"
#include "app/setups/frmupload.h"
#include "queries/querymanager.h"
#include "store/engine/engineerror.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QCloseEvent>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QToolBar>

namespace stemwright
{

namespace
{

const QString splitterKey = QStringLiteral("splHalves");

/// Whether a procedure or a dialog is at work: systems may close the window or drop a file on it even then.
bool IsBusy()
{
    return QApplication::activeModalWidget() != nullptr;
}

} // namespace

frmAlbum::frmAlbum(Environment& environment)
    : m_environment(environment),
      m_actions(std::make_unique<AlbumActions>(*this, environment.application.file(QStringLiteral("icons")))),
      m_files(new FileMenu(
          *m_actions, environment, [this] { return leaveRecord(); }, this)),
      m_file(m_files->file()), m_people(m_file, environment), m_browser(new PictureBrowser(this)),
      m_editor(new RecordEditor(environment, this)), m_halves(new QSplitter(Qt::Vertical, this)),
      cboQuery(new QComboBox), lblPosition(MakeLabel("lblPosition"))
{
    setObjectName(QStringLiteral("frmAlbum"));
    setAcceptDrops(true);
    ResizeForLetters(*this, 1100, 760);
    cboQuery->setObjectName(QStringLiteral("cboQuery"));
    cboQuery->setToolTip(QStringLiteral("Picture list query"));
    cboQuery->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboQuery->setMinimumContentsLength(16);
    m_actions->toolbar->addWidget(cboQuery);
    m_actions->toolbar->addAction(m_actions->actRunQuery);
    statusBar()->addPermanentWidget(lblPosition);

    m_halves->setObjectName(splitterKey);
    m_halves->addWidget(m_browser);
    m_halves->addWidget(m_editor);
    m_halves->setStretchFactor(0, 2);
    m_halves->setStretchFactor(1, 3);
    m_halves->setChildrenCollapsible(false);
    setCentralWidget(m_halves);

    connectActions();
    connectParts();
    RememberPlace(*this, environment.settings);
    m_halves->restoreState(
        QByteArray::fromBase64(environment.settings.value(setting::windows, splitterKey).toLatin1()));
    showFile();
}

frmAlbum::~frmAlbum() = default;

void frmAlbum::connectActions()
{
    const auto act = [this](QAction* action, auto procedure) { connect(action, &QAction::triggered, this, procedure); };
    act(m_actions->mnuExportTabletoText, [this] { exportList(); });
    act(m_actions->mnuImportGedcom, [this] { importGedcom(); });
    act(m_actions->mnuPreV2, [this] { importOldAlbum(); });
    act(m_actions->mnuMatchNames, [this] { matchOldNames(); });
    act(m_actions->mnuProperties, [this] { showProperties(); });
    act(m_actions->mnuExit, [this] { close(); });
    act(m_actions->mnuContEdit, [this] { m_people.editContacts(this); });
    act(m_actions->mnuAddPicRec, [this] { addRecord(); });
    act(m_actions->mnuEditPicRec, [this] { editRecord(); });
    act(m_actions->mnuDelPicRec, [this] { deleteRecord(); });
    act(m_actions->mnuApply, [this] { m_editor->apply(); });
    act(m_actions->mnuQueries, [this] { manageQueries(); });
    act(m_actions->mnuFind, [this] { findPicture(); });
    act(m_actions->mnuThumbView, [this](bool thumbnails) { showThumbnails(thumbnails); });
    act(m_actions->mnuCreateWebPages, [this] { createWebPages(); });
    act(m_actions->mnuViewWebPages, [this] { ViewWebPages(m_file.connection(), m_environment, this); });
    act(m_actions->mnuUploadWebPages, [this] { ShowUpload(m_file.connection(), m_environment, this); });
    act(m_actions->mnuHelp, [this] { ShowHelp(m_environment, FrontHelpPage(m_environment)); });
    act(m_actions->mnuAbout, [this] { ShowAbout(m_environment.application, *this); });
    act(m_actions->actFirst, [this] { m_browser->goToRow(0); });
    act(m_actions->actPrevious, [this] { m_browser->goToRow(m_browser->row() - 1); });
    act(m_actions->actNext, [this] { m_browser->goToRow(m_browser->row() + 1); });
    act(m_actions->actLast, [this] { m_browser->goToRow(m_browser->rowCount() - 1); });
    act(m_actions->actRunQuery, [this] { runQuery(cboQuery->currentText()); });
}

void frmAlbum::connectParts()
{
    connect(m_files, &FileMenu::opened, this, &frmAlbum::showFile);
    connect(m_browser, &PictureBrowser::currentChanged, this, &frmAlbum::recordChanged);
    connect(m_browser, &PictureBrowser::activated, this, &frmAlbum::editRecord);
    connect(m_browser, &PictureBrowser::galleryLeft, this, [this] { showThumbnails(true); });
    connect(m_editor, &RecordEditor::applied, this, &frmAlbum::recordApplied);
    connect(m_editor, &RecordEditor::cancelled, this, &frmAlbum::recordCancelled);
    connect(cboQuery, &QComboBox::textActivated, this, &frmAlbum::runQuery);
    m_editor->setPersonPicker([this] { return m_people.pick(); });
    connect(m_halves, &QSplitter::splitterMoved, this, [this] {
        m_environment.settings.setValue(setting::windows, splitterKey,
                                        QString::fromLatin1(m_halves->saveState().toBase64()));
    });
}

// The family file.

/// Fills the window from the family file, or empties it.
void frmAlbum::showFile()
{
    const QString application = QApplication::applicationDisplayName();
    setWindowTitle(m_file.isOpen() ? application + QStringLiteral(" - ") + QDir::toNativeSeparators(m_file.path())
                                   : application);
    m_queryName.clear();
    m_people.forget();
    if (m_file.isOpen()) {
        refill(std::nullopt);
    } else {
        m_editor->showNothing(appmessages::NoFile());
        SetToolbar();
    }
}

void frmAlbum::importGedcom()
{
    if (leaveRecord() && ImportGedcomInto(m_file, m_environment, *this)) {
        m_people.forget();
        refill(m_browser->current());
    }
}

void frmAlbum::importOldAlbum()
{
    const AlbumImportReport report = ImportOldAlbum(
        m_file, m_environment, [this] { return m_people.pick(); }, this);
    if (report.inAlbum > 0) {
        refill(m_browser->current());
        statusBar()->showMessage(appmessages::AlbumImported(report.imported, report.inAlbum), 10'000);
    }
}

void frmAlbum::matchOldNames()
{
    MatchOldNames(
        m_file, m_environment, [this] { return m_people.pick(); }, this);
    refill(m_browser->current());
}

void frmAlbum::exportList()
{
    if (m_browser->table()) {
        ShowExportWindow(*m_browser->table(), m_file.path(), m_environment, this);
    }
}

void frmAlbum::showProperties()
{
    ShowProperties(m_file, m_environment, this);
}

void frmAlbum::createWebPages()
{
    ShowSetups(
        m_file, m_environment, [this] { return m_people.pick(); }, this);
}

// The list of pictures.

void frmAlbum::fillQueries()
{
    cboQuery->clear();
    cboQuery->addItems(QueryManager(m_file.connection(), m_environment).names());
    cboQuery->setCurrentText(m_queryName);
}

void frmAlbum::runQuery(const QString& name)
{
    if (!name.isEmpty() && leaveRecord()) {
        m_queryName = name;
        refill(m_browser->current());
    }
}

/// Runs the current query anew; `wanted` is the picture to go to.
void frmAlbum::refill(std::optional<int> wanted)
{
    std::optional<PictureTable> table = OpenPictureList(m_file.connection(), m_environment, m_queryName);
    if (table) {
        m_queryName = table->queryName();
    }
    m_browser->setList(std::move(table), m_file, wanted);
    m_actions->setHasOldNames(CanMatchOldNames(m_file));
    SetToolbar();
    fillQueries();
}

void frmAlbum::manageQueries()
{
    if (!leaveRecord()) {
        return;
    }
    const auto run = ShowQueries(
        m_file.connection(), m_environment, m_queryName, [this] { return m_people.pick(); }, this);
    if (run) {
        m_queryName = *run;
    }
    refill(m_browser->current());
}

/// Another picture became current.
void frmAlbum::recordChanged()
{
    if (m_editor->isEditing()) {
        return;
    }
    if (const std::optional<int> current = m_browser->current()) {
        m_editor->showRecord(m_file.connection(), *current);
    } else {
        m_editor->showNothing(m_file.isOpen() ? appmessages::EmptyList() : appmessages::NoFile());
    }
    SetToolbar();
}

void frmAlbum::findPicture()
{
    PictureList list(m_queryName, m_browser->table()->pictureIds());
    if (list.find(m_environment.talk)) {
        m_browser->setCurrent(*list.current());
    }
}

void frmAlbum::showThumbnails(bool thumbnails)
{
    if (!m_browser->showThumbnails(thumbnails)) {
        statusBar()->showMessage(appmessages::TooLongForGallery(), 10'000);
    }
    m_actions->mnuThumbView->setChecked(m_browser->showsThumbnails());
}

// The record.

void frmAlbum::addRecord(const QString& pictureFile)
{
    DisableUpperHalf();
    if (!m_editor->add(m_file.connection(), m_browser->current(), pictureFile)) {
        EnableUpperHalf();
    }
    SetToolbar();
}

void frmAlbum::editRecord()
{
    if (const std::optional<int> current = m_browser->current(); current && state() == AlbumState::Browsing) {
        if (m_editor->edit(m_file.connection(), *current)) {
            DisableUpperHalf();
        }
        SetToolbar();
    }
}

void frmAlbum::deleteRecord()
{
    PictureList list(m_queryName, m_browser->table()->pictureIds());
    list.goTo(*m_browser->current());
    try {
        if (list.removeCurrent(m_file.connection(), m_environment.talk)) {
            refill(list.current());
        }
    } catch (const std::exception& exception) {
        m_environment.talk.tell(appmessages::CannotDelete(ReasonText(exception)));
    }
}

void frmAlbum::recordApplied(int pictureId)
{
    refill(pictureId);
    EnableUpperHalf();
}

void frmAlbum::recordCancelled(int pictureId)
{
    if (!m_browser->setCurrent(pictureId)) {
        m_browser->goToRow(m_browser->row());
    }
    recordChanged();
    EnableUpperHalf();
}

void frmAlbum::DisableUpperHalf()
{
    m_browser->setEnabled(false);
}

void frmAlbum::EnableUpperHalf()
{
    m_browser->setEnabled(true);
    m_browser->setFocus();
    SetToolbar();
}

bool frmAlbum::leaveRecord()
{
    if (!m_editor->isEditing()) {
        return true;
    }
    switch (m_environment.talk.ask(albummessages::SavingTheChanges())) {
    case Button::Yes:
        return m_editor->apply();
    case Button::No:
        m_editor->cancel();
        return true;
    default:
        return false;
    }
}

// What can be done now.

AlbumState frmAlbum::state() const
{
    if (!m_file.isOpen()) {
        return AlbumState::NoFile;
    }
    if (m_editor->isEditing()) {
        return AlbumState::Editing;
    }
    return m_browser->rowCount() == 0 ? AlbumState::EmptyList : AlbumState::Browsing;
}

void frmAlbum::SetToolbar()
{
    m_actions->enable(state(), m_browser->row(), m_browser->rowCount());
    cboQuery->setEnabled(m_actions->actRunQuery->isEnabled());
    showPosition();
}

void frmAlbum::showPosition()
{
    switch (state()) {
    case AlbumState::NoFile:
        lblPosition->clear();
        break;
    case AlbumState::EmptyList:
        lblPosition->setText(appmessages::NoPictures());
        break;
    case AlbumState::Browsing:
        lblPosition->setText(appmessages::PicturePosition(m_browser->row() + 1, m_browser->rowCount()));
        break;
    case AlbumState::Editing:
        lblPosition->setText(appmessages::EditingRecord());
        break;
    }
}

// Events.

void frmAlbum::closeEvent(QCloseEvent* event)
{
    if (!IsBusy() && leaveRecord()) {
        event->accept();
    } else {
        event->ignore();
    }
}

/// Escape leaves a record, but asks first: it is pressed by mistake more easily than Cancel.
void frmAlbum::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        leaveRecord();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void frmAlbum::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_file.isOpen() && !IsBusy() && event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

/// A picture file begins a new record, or becomes the picture of the one that is being edited.
void frmAlbum::dropEvent(QDropEvent* event)
{
    if (!m_file.isOpen() || IsBusy()) {
        return;
    }
    event->acceptProposedAction();
    // The program from which the file comes waits until this is over, so whatever asks the user comes after it.
    const auto later = [this](auto action) { QTimer::singleShot(0, this, action); };
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() != 1 || !urls.constFirst().isLocalFile() || !QFileInfo(urls.constFirst().toLocalFile()).isFile()) {
        later([this] { m_environment.talk.tell(appmessages::DropOnePicture()); });
        return;
    }
    later([this, path = urls.constFirst().toLocalFile()] {
        if (m_editor->isEditing()) {
            m_editor->choosePictureFile(path);
        } else {
            addRecord(path);
        }
    });
}

} // namespace stemwright
