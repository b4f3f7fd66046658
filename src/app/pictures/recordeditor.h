// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/pictureediting.h"
#include "app/common/personpicking.h"

#include <QtWidgets/QWidget>

class QPushButton;
class QSplitter;

/// The lower half of the main window: one picture record with its picture and its persons, shown while the user
/// browses and open while he adds or edits. It tells what goes wrong and then shows what there is; nothing here fails.
/// Stands on PictureEditing, which knows all rules.
namespace stemwright
{

class PersonsPanel;
class PictureView;
class RecordForm;

class RecordEditor : public QWidget
{
    Q_OBJECT

public:
    RecordEditor(Environment& environment, QWidget* parent);

    void setPersonPicker(PersonPicker picker);

    /// Shows a record that is not edited. Must not be called while one is.
    void showRecord(Connection& connection, int pictureId);
    /// Shows no record, and a text where the picture would be. What was being edited is gone.
    void showNothing(const QString& text);

    /// Opens an empty record, or one with the picture of this file. `current` is the picture shown until now. False
    /// when that fails, which the user was told; so does edit().
    bool add(Connection& connection, std::optional<int> current, const QString& pictureFile = {});
    /// Opens a record.
    bool edit(Connection& connection, int pictureId);

    bool isEditing() const { return m_editing.has_value(); }

    /// Takes the picture for the open record from a file.
    void choosePictureFile(const QString& path);

public Q_SLOTS:
    /// Writes the open record. False when that fails, which the user was told; it is still open then.
    bool apply();
    /// Discards what was not applied.
    void cancel();

Q_SIGNALS:
    void applied(int pictureId);
    /// The number of the picture to show again, 0 for none.
    void cancelled(int pictureId);

private:
    /// Opens the record with which `begin` starts the editing.
    bool open(Connection& connection, const std::function<void(PictureEditing&)>& begin);
    void showChosenPicture();
    void choosePicture();
    void chooseDate();
    void setButtons();

    Environment& m_environment;
    std::optional<PictureEditing> m_editing;
    QSplitter* m_parts;
    RecordForm* m_form;
    PictureView* m_view;
    PersonsPanel* m_persons;
    QPushButton* cmdApply;
    QPushButton* cmdCancel;
};

} // namespace stemwright
