// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/filemenu.h"
#include "app/people/people.h"
#include "base/environment.h"

#include <QtWidgets/QMainWindow>

class QComboBox;
class QLabel;
class QSplitter;

/// The main window: above, the current list of pictures; below, the record of the current one. It decides what can be
/// done when, and calls the domain's procedures for it; what they have to say they say themselves. Nothing here fails.
/// Stands on all of the domain.
namespace stemwright
{

enum class AlbumState;
struct AlbumActions;
class PictureBrowser;
class RecordEditor;

class frmAlbum : public QMainWindow
{
    Q_OBJECT

public:
    /// `environment` must outlive the window.
    explicit frmAlbum(Environment& environment);
    ~frmAlbum() override;

    /// Opens the family file that the program was started with, or the last one; without any, or where that does not
    /// open, the welcome window offers what to do.
    void start(const QString& fileArgument) { m_files->start(fileArgument); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void connectActions();
    void connectParts();

    // The family file.
    void showFile();
    void importGedcom();
    void importOldAlbum();
    void matchOldNames();
    void exportList();
    void showProperties();
    void createWebPages();

    // The list of pictures.
    void fillQueries();
    void runQuery(const QString& name);
    void refill(std::optional<int> wanted);
    void manageQueries();
    void recordChanged();
    void findPicture();
    void showThumbnails(bool thumbnails);

    // The record.
    void addRecord(const QString& pictureFile = {});
    void editRecord();
    void deleteRecord();
    void recordApplied(int pictureId);
    void recordCancelled(int pictureId);
    void DisableUpperHalf();
    void EnableUpperHalf();
    /// Asks what becomes of a record that is being edited. False when the user wants to go on editing it.
    bool leaveRecord();

    AlbumState state() const;
    /// Enables what can be done now.
    void SetToolbar();
    void showPosition();

    Environment& m_environment;
    std::unique_ptr<AlbumActions> m_actions;
    FileMenu* m_files;
    FamilyFile& m_file;
    People m_people;
    QString m_queryName;
    PictureBrowser* m_browser;
    RecordEditor* m_editor;
    QSplitter* m_halves;
    QComboBox* cboQuery;
    QLabel* lblPosition;
};

} // namespace stemwright
