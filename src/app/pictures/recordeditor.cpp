// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/pictures/recordeditor.h"

#include "album/messages.h"
#include "app/common/controls.h"
#include "app/common/frmdate.h"
#include "app/common/messages.h"
#include "app/pictures/personspanel.h"
#include "app/pictures/pictureview.h"
#include "app/pictures/recordform.h"
#include "base/error.h"
#include "base/files.h"
#include "store/engine/engineerror.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSplitter>

namespace stemwright
{

namespace
{

/// A column that scrolls where a window is too low for it, and is never narrower than what it holds.
class Column : public QScrollArea
{
public:
    explicit Column(QWidget* content)
    {
        setWidget(content);
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        fit();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            fit();
        }
        return QScrollArea::eventFilter(watched, event);
    }

private:
    void fit() { setMinimumWidth(widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width()); }
};

} // namespace

RecordEditor::RecordEditor(Environment& environment, QWidget* parent)
    : QWidget(parent), m_environment(environment), m_parts(new QSplitter(Qt::Horizontal, this)),
      m_form(new RecordForm(this)),
      m_view(new PictureView(environment.application.file(QStringLiteral("ArrowPointer.gif")), this)),
      m_persons(new PersonsPanel(*m_view, environment, this)),
      cmdApply(
          MakeButton("cmdApply", QStringLiteral("Appl&y"), QStringLiteral("Write new/modified record to the album"))),
      cmdCancel(MakeButton("cmdCancel", QStringLiteral("&Cancel"), QStringLiteral("Discard the changes")))
{
    auto* record = new QWidget;
    auto* recordLayout = new QVBoxLayout(record);
    recordLayout->setContentsMargins(0, 0, 0, 0);
    recordLayout->addWidget(new Column(m_form), 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdApply);
    buttons->addWidget(cmdCancel);
    buttons->addStretch();
    recordLayout->addLayout(buttons);

    m_parts->setObjectName(QStringLiteral("splRecord"));
    m_parts->addWidget(record);
    m_parts->addWidget(new Column(m_persons));
    m_parts->addWidget(m_view);
    m_parts->setStretchFactor(2, 1);
    m_parts->setChildrenCollapsible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_parts);

    connect(cmdApply, &QPushButton::clicked, this, &RecordEditor::apply);
    connect(cmdCancel, &QPushButton::clicked, this, &RecordEditor::cancel);
    connect(m_form, &RecordForm::choosePicture, this, &RecordEditor::choosePicture);
    connect(m_form, &RecordForm::chooseDate, this, &RecordEditor::chooseDate);
    setButtons();
}

void RecordEditor::setPersonPicker(PersonPicker picker)
{
    m_persons->setPersonPicker(std::move(picker));
}

void RecordEditor::setButtons()
{
    cmdApply->setEnabled(isEditing());
    cmdCancel->setEnabled(isEditing());
}

void RecordEditor::showRecord(Connection& connection, int pictureId)
{
    try {
        const PictureRecord record = LoadPictureRecord(connection, pictureId);
        PersonMarks marks;
        marks.LoadPersonList(connection, pictureId);
        ShowStoredPicture(*m_view, connection, pictureId);
        m_form->show(record);
        m_persons->show(marks, record.pointer);
    } catch (const std::exception& exception) {
        showNothing(ReasonText(exception));
    }
}

void RecordEditor::showNothing(const QString& text)
{
    m_view->showText(text);
    m_form->show(std::nullopt);
    m_persons->show({}, PointerTool::Rectangle);
    m_editing.reset();
    setButtons();
}

bool RecordEditor::open(Connection& connection, const std::function<void(PictureEditing&)>& begin)
{
    try {
        const QStringList places = KnownPlaces(connection);
        m_editing.emplace(connection, m_environment);
        begin(*m_editing);
        m_form->edit(*m_editing, places);
    } catch (const std::exception& exception) {
        m_editing.reset();
        m_environment.talk.tell(appmessages::CannotEdit(ReasonText(exception)));
        return false;
    }
    m_persons->edit(*m_editing);
    setButtons();
    return true;
}

bool RecordEditor::add(Connection& connection, std::optional<int> current, const QString& pictureFile)
{
    if (!open(connection, [current](PictureEditing& editing) { editing.AddPicRec(current); })) {
        return false;
    }
    m_view->showText(appmessages::NoPictureYet());
    if (!pictureFile.isEmpty()) {
        choosePictureFile(pictureFile);
    }
    return true;
}

bool RecordEditor::edit(Connection& connection, int pictureId)
{
    return open(connection, [pictureId](PictureEditing& editing) { editing.EditPicRec(pictureId); });
}

void RecordEditor::choosePicture()
{
    if (const auto path = m_environment.talk.chooseFile(albummessages::OpenPicture())) {
        choosePictureFile(*path);
    }
}

void RecordEditor::choosePictureFile(const QString& path)
{
    if (m_editing && m_editing->choosePicture(path)) {
        showChosenPicture();
        m_form->refresh();
        m_persons->refresh();
    }
}

void RecordEditor::showChosenPicture()
{
    try {
        m_view->showPicture(ImageFile(ReadWholeFile(m_editing->chosenPath())));
    } catch (const std::exception& exception) {
        m_view->showText(appmessages::CannotShowPicture(ReasonText(exception)));
    }
}

void RecordEditor::chooseDate()
{
    if (const auto date = ChooseDate(m_editing->record().encodedDate, m_environment, this)) {
        m_editing->setDate(*date);
        m_form->refresh();
    }
}

bool RecordEditor::apply()
{
    if (!m_editing || !m_persons->enterPendingName()) {
        return false;
    }
    int pictureId = 0;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    std::optional<QString> failure;
    try {
        pictureId = m_editing->apply();
    } catch (const std::exception& exception) {
        failure = ReasonText(exception);
    }
    QGuiApplication::restoreOverrideCursor();
    if (failure) {
        m_environment.talk.tell(appmessages::CannotApply(*failure));
        return false;
    }
    m_form->show(std::nullopt);
    m_persons->show({}, PointerTool::Rectangle);
    m_editing.reset();
    setButtons();
    Q_EMIT applied(pictureId);
    return true;
}

void RecordEditor::cancel()
{
    if (!m_editing) {
        return;
    }
    std::optional<int> pictureId;
    try {
        pictureId = m_editing->cancel();
    } catch (const std::exception&) {
        // Whoever shows the record again meets the same failure, and tells it.
    }
    showNothing({});
    Q_EMIT cancelled(pictureId.value_or(0));
}

} // namespace stemwright
