// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/pictureediting.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

/// The fields of one picture record. It shows a record, and while that is edited it hands every change to the
/// PictureEditing at once. Nothing here fails; what does not fit is refused when the record is applied. Stands on the
/// album's records.
namespace stemwright
{

class RecordForm : public QWidget
{
    Q_OBJECT

public:
    explicit RecordForm(QWidget* parent);

    /// Shows a record that cannot be changed; nothing for no value.
    void show(const std::optional<PictureRecord>& record);
    /// Opens the fields for a record that is being edited; `places` are on offer for the place. `editing` must outlive
    /// the next show().
    void edit(PictureEditing& editing, const QStringList& places);

    /// Shows what the record holds now, after a picture or a date was chosen.
    void refresh();

Q_SIGNALS:
    void choosePicture();
    void chooseDate();

private:
    void connectFields();
    void setFields(const PictureRecord& record);
    void setEditable(bool editable);
    /// Hands a change of a field to the record, unless the form itself makes it.
    template <typename Change>
    void pass(Change change);

    QLabel* lblPicId;
    QLabel* lblPicFilename;
    QPushButton* cmdSelectPic;
    QLineEdit* txtTitle;
    QPlainTextEdit* txtDescription;
    QComboBox* dcbPlace;
    QLineEdit* txtDateString;
    QPushButton* cmdSelectDate;
    QRadioButton* optNamesLeft;
    QRadioButton* optNamesAbove;
    PictureEditing* m_editing = nullptr;
    bool m_filling = false;
};

} // namespace stemwright
