// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/pictures/recordform.h"

#include "app/common/controls.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace stemwright
{

namespace
{

/// A field with a button beside it.
QHBoxLayout* WithButton(QWidget* field, QPushButton* button)
{
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(button);
    return row;
}

void AddRow(QFormLayout& form, const QString& caption, QWidget* field, QLayout* row)
{
    auto* label = new QLabel(caption);
    label->setBuddy(field);
    form.addRow(label, row);
}

} // namespace

RecordForm::RecordForm(QWidget* parent)
    : QWidget(parent), lblPicId(MakeLabel("lblPicId")), lblPicFilename(MakeLabel("lblPicFilename")),
      cmdSelectPic(MakeButton("cmdSelectPic", QStringLiteral("&Browse..."), QStringLiteral("Press to select picture"))),
      txtTitle(MakeLine("txtTitle", QStringLiteral("Description of the picture"))), txtDescription(new QPlainTextEdit),
      dcbPlace(new QComboBox), txtDateString(MakeLine("txtDateString")),
      cmdSelectDate(
          MakeButton("cmdSelectDate", QStringLiteral("&Select..."), QStringLiteral("Press to select picture date"))),
      optNamesLeft(MakeOption("optNamesLeft", QStringLiteral("Left of the Pict&ure"))),
      optNamesAbove(MakeOption("optNamesAbove", QStringLiteral("Abo&ve the Picture")))
{
    txtDescription->setObjectName(QStringLiteral("txtDescription"));
    txtDescription->setTabChangesFocus(true);
    txtDescription->setMinimumHeight(3 * txtDescription->fontMetrics().lineSpacing());
    dcbPlace->setObjectName(QStringLiteral("dcbPlace"));
    // A long name is cut short rather than pushing the button out of sight; its tip has all of it.
    lblPicFilename->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    dcbPlace->setEditable(true);
    dcbPlace->setInsertPolicy(QComboBox::NoInsert);
    dcbPlace->setToolTip(QStringLiteral("Place where the picture was taken"));
    dcbPlace->setMinimumContentsLength(12);
    dcbPlace->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    txtDateString->setReadOnly(true);
    txtDateString->setPlaceholderText(QStringLiteral("no date"));

    auto* names = new QGroupBox(QStringLiteral("Placement of Names"));
    auto* namesLayout = new QVBoxLayout(names);
    namesLayout->addWidget(optNamesLeft);
    namesLayout->addWidget(optNamesAbove);

    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(QStringLiteral("Picture ID:"), lblPicId);
    AddRow(*form, QStringLiteral("Picture File:"), cmdSelectPic, WithButton(lblPicFilename, cmdSelectPic));
    form->addRow(QStringLiteral("&Title:"), txtTitle);
    form->addRow(QStringLiteral("&Description:"), txtDescription);
    form->addRow(QStringLiteral("P&lace:"), dcbPlace);
    AddRow(*form, QStringLiteral("D&ate:"), cmdSelectDate, WithButton(txtDateString, cmdSelectDate));
    form->addRow(names);
    connectFields();
    show(std::nullopt);
}

template <typename Change>
void RecordForm::pass(Change change)
{
    if (m_editing != nullptr && !m_filling) {
        change(*m_editing);
    }
}

void RecordForm::connectFields()
{
    connect(cmdSelectPic, &QPushButton::clicked, this, &RecordForm::choosePicture);
    connect(cmdSelectDate, &QPushButton::clicked, this, &RecordForm::chooseDate);
    connect(txtTitle, &QLineEdit::textChanged, this,
            [this](const QString& text) { pass([&text](PictureEditing& editing) { editing.setTitle(text); }); });
    connect(txtDescription, &QPlainTextEdit::textChanged, this, [this] {
        pass([this](PictureEditing& editing) { editing.setDescription(txtDescription->toPlainText()); });
    });
    connect(dcbPlace, &QComboBox::editTextChanged, this,
            [this](const QString& text) { pass([&text](PictureEditing& editing) { editing.setPlace(text); }); });
    connect(optNamesLeft, &QRadioButton::toggled, this, [this](bool left) {
        pass([left](PictureEditing& editing) { editing.setNames(left ? NamePlacement::Left : NamePlacement::Above); });
    });
}

void RecordForm::setFields(const PictureRecord& record)
{
    const QScopedValueRollback filling(m_filling, true);
    lblPicId->setText(record.id > 0 ? QString::number(record.id) : QString());
    lblPicFilename->setText(record.filename);
    lblPicFilename->setToolTip(record.filename.toHtmlEscaped());
    txtTitle->setText(record.title);
    txtTitle->setCursorPosition(0);
    txtDescription->setPlainText(record.description);
    dcbPlace->setEditText(record.place);
    // The text of a date without a precision begins with a blank.
    txtDateString->setText(record.date.trimmed());
    (record.names == NamePlacement::Left ? optNamesLeft : optNamesAbove)->setChecked(true);
}

void RecordForm::setEditable(bool editable)
{
    txtTitle->setReadOnly(!editable);
    txtDescription->setReadOnly(!editable);
    dcbPlace->lineEdit()->setReadOnly(!editable);
    for (QWidget* control : std::initializer_list<QWidget*>{cmdSelectPic, cmdSelectDate, optNamesLeft, optNamesAbove}) {
        control->setEnabled(editable);
    }
}

void RecordForm::show(const std::optional<PictureRecord>& record)
{
    m_editing = nullptr;
    // Without its list, the box of places is as readable as the other fields and offers nothing.
    dcbPlace->clear();
    setFields(record.value_or(PictureRecord{}));
    setEditable(false);
}

void RecordForm::edit(PictureEditing& editing, const QStringList& places)
{
    m_editing = &editing;
    {
        const QScopedValueRollback filling(m_filling, true);
        dcbPlace->clear();
        dcbPlace->addItems(places);
    }
    refresh();
    setEditable(true);
    txtTitle->setFocus();
}

void RecordForm::refresh()
{
    if (m_editing != nullptr) {
        setFields(m_editing->record());
    }
}

} // namespace stemwright
