// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/nameentry.h"
#include "album/pictureediting.h"
#include "app/common/personpicking.h"

#include <QtWidgets/QWidget>

class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

/// The persons of one picture: the list of their names, the name box, and the choice of rectangles or arrows. While the
/// record is edited, names are added, changed and removed here; where the pointer stands is the picture view's. Nothing
/// here fails: what does not fit is told. Stands on the album's marks.
namespace stemwright
{

class PictureView;

class PersonsPanel : public QWidget
{
    Q_OBJECT

public:
    /// `view` shows the marks and the pointer. It and `environment` must outlive the panel.
    PersonsPanel(PictureView& view, Environment& environment, QWidget* parent);

    /// Who is asked for an individual of the tree.
    void setPersonPicker(PersonPicker picker) { m_picker = std::move(picker); }

    /// Shows the persons of a record that cannot be changed.
    void show(const PersonMarks& marks, PointerTool tool);
    /// Opens the panel for a record that is being edited, which must outlive the next show().
    void edit(PictureEditing& editing);

    /// Shows the marks anew, after another picture was chosen.
    void refresh();

    /// Enters the name that stands in the box, if any, which the user may have thought to be entered. False when it
    /// cannot be, which the user was told.
    bool enterPendingName();

private:
    void layOut();
    void connectControls();
    const std::vector<PersonMark>& marks() const;
    PointerTool tool() const;
    std::optional<std::size_t> selected() const;
    void select(std::optional<std::size_t> mark);
    void fillList();
    void showMarks();
    void showEntry();
    void setControls();
    bool acceptName();
    void cancelName();
    void editName();
    void remove();
    void showPointer();
    void hidePointer();
    void chooseTool(PointerTool tool);
    void pickPerson();

    PictureView& m_view;
    Environment& m_environment;
    PersonPicker m_picker;
    PictureEditing* m_editing = nullptr;
    std::vector<PersonMark> m_shown;
    PointerTool m_shownTool = PointerTool::Arrow;
    NameEntry m_entry;
    bool m_filling = false;

    QGroupBox* fraPointerTool;
    QRadioButton* optRectangle;
    QRadioButton* optArrow;
    QListWidget* hfgPersons;
    QLabel* lblHint;
    QLineEdit* txtName;
    QPushButton* cmdShowIndex;
    QPushButton* cmdShowPointer;
    QPushButton* cmdHidePointer;
    QPushButton* cmdOKName;
    QPushButton* cmdCancelName;
    QPushButton* cmdEditName;
    QPushButton* cmdRemove;
    QLabel* lblPointerHint;
};

} // namespace stemwright
