// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/pictures/personspanel.h"

#include "album/messages.h"
#include "app/common/controls.h"
#include "app/common/messages.h"
#include "app/pictures/pictureview.h"
#include "store/engine/engineerror.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

namespace stemwright
{

PersonsPanel::PersonsPanel(PictureView& view, Environment& environment, QWidget* parent)
    : QWidget(parent), m_view(view), m_environment(environment),
      fraPointerTool(new QGroupBox(QStringLiteral("Pointer Tool"))),
      optRectangle(MakeOption("optRectangle", QStringLiteral("Rectan&gle"))),
      optArrow(MakeOption("optArrow", QStringLiteral("Arr&ow"))), hfgPersons(new QListWidget),
      lblHint(MakeLabel("lblHint")), txtName(MakeLine("txtName", QStringLiteral("Name of a person in the picture"))),
      cmdShowIndex(MakeButton("cmdShowIndex", QStringLiteral("Inde&x..."), QStringLiteral("Display index of names"))),
      cmdShowPointer(MakeButton("cmdShowPointer", QStringLiteral("Show Pointe&r"))),
      cmdHidePointer(MakeButton("cmdHidePointer", QStringLiteral("Hide Pointe&r"))),
      cmdOKName(MakeButton("cmdOKName", QStringLiteral("O&K Add/Edit"))),
      cmdCancelName(MakeButton("cmdCancelName", QStringLiteral("Ca&ncel Add/Edit"))),
      cmdEditName(MakeButton("cmdEditName", QStringLiteral("Ed&it"), QStringLiteral("Edit the selected name"))),
      cmdRemove(
          MakeButton("cmdRemove", QStringLiteral("Re&move"), QStringLiteral("Remove the selected name from the list"))),
      lblPointerHint(MakeLabel("lblPointerHint", albummessages::dragThePointer))
{
    hfgPersons->setObjectName(QStringLiteral("hfgPersons"));
    hfgPersons->setAccessibleName(QStringLiteral("Persons in the picture"));
    QFont font(QStringLiteral("Times New Roman"));
    font.setStyleHint(QFont::Serif);
    font.setPointSizeF(hfgPersons->font().pointSizeF());
    hfgPersons->setFont(font);
    hfgPersons->setUniformItemSizes(true);
    LetCopy(*hfgPersons);
    lblHint->setBuddy(txtName);
    lblPointerHint->setWordWrap(true);
    layOut();
    connectControls();
    setControls();
}

void PersonsPanel::layOut()
{
    auto* tools = new QHBoxLayout(fraPointerTool);
    tools->addWidget(optRectangle);
    tools->addWidget(optArrow);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(fraPointerTool);
    layout->addWidget(hfgPersons, 1);
    layout->addLayout(MakeRow({cmdEditName, cmdRemove}));
    layout->addWidget(lblHint);
    layout->addLayout(MakeRow({txtName, cmdShowIndex}));
    layout->addLayout(MakeRow({cmdShowPointer, cmdHidePointer}));
    layout->addWidget(lblPointerHint);
    layout->addLayout(MakeRow({cmdOKName, cmdCancelName}));
}

void PersonsPanel::connectControls()
{
    connect(hfgPersons, &QListWidget::currentRowChanged, this, [this] {
        if (!m_filling) {
            showMarks();
            setControls();
        }
    });
    connect(hfgPersons, &QListWidget::itemActivated, this, &PersonsPanel::editName);
    connect(&m_view, &PictureView::markClicked, this, [this](int mark) { hfgPersons->setCurrentRow(mark); });
    connect(&m_view, &PictureView::pointerCancelled, this, &PersonsPanel::cancelName);
    connect(txtName, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (!m_filling) {
            m_entry.type(text);
        }
        setControls();
    });
    connect(txtName, &QLineEdit::returnPressed, this, &PersonsPanel::acceptName);
    connect(cmdOKName, &QPushButton::clicked, this, &PersonsPanel::acceptName);
    connect(cmdCancelName, &QPushButton::clicked, this, &PersonsPanel::cancelName);
    connect(cmdEditName, &QPushButton::clicked, this, &PersonsPanel::editName);
    connect(cmdRemove, &QPushButton::clicked, this, &PersonsPanel::remove);
    connect(cmdShowPointer, &QPushButton::clicked, this, &PersonsPanel::showPointer);
    connect(cmdHidePointer, &QPushButton::clicked, this, &PersonsPanel::hidePointer);
    connect(cmdShowIndex, &QPushButton::clicked, this, &PersonsPanel::pickPerson);
    connect(optRectangle, &QRadioButton::clicked, this, [this] { chooseTool(PointerTool::Rectangle); });
    connect(optArrow, &QRadioButton::clicked, this, [this] { chooseTool(PointerTool::Arrow); });
}

const std::vector<PersonMark>& PersonsPanel::marks() const
{
    return m_editing != nullptr ? m_editing->marks().all() : m_shown;
}

PointerTool PersonsPanel::tool() const
{
    return m_editing != nullptr ? m_editing->record().pointer : m_shownTool;
}

std::optional<std::size_t> PersonsPanel::selected() const
{
    const int row = hfgPersons->currentRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

void PersonsPanel::select(std::optional<std::size_t> mark)
{
    hfgPersons->setCurrentRow(mark && *mark < marks().size() ? static_cast<int>(*mark) : -1);
}

void PersonsPanel::show(const PersonMarks& marks, PointerTool tool)
{
    m_editing = nullptr;
    m_shown = marks.all();
    m_shownTool = tool;
    m_entry.clear();
    refresh();
}

void PersonsPanel::edit(PictureEditing& editing)
{
    const std::optional<std::size_t> looked = selected();
    m_editing = &editing;
    m_entry.clear();
    refresh();
    select(looked);
}

void PersonsPanel::refresh()
{
    (tool() == PointerTool::Rectangle ? optRectangle : optArrow)->setChecked(true);
    m_view.hidePointer();
    fillList();
    showEntry();
}

void PersonsPanel::fillList()
{
    {
        const QScopedValueRollback filling(m_filling, true);
        hfgPersons->clear();
        for (const PersonMark& mark : marks()) {
            hfgPersons->addItem(mark.name);
        }
    }
    showMarks();
    setControls();
}

void PersonsPanel::showMarks()
{
    m_view.showMarks(marks(), tool(), selected());
}

void PersonsPanel::showEntry()
{
    const QScopedValueRollback filling(m_filling, true);
    lblHint->setText(m_entry.hint());
    txtName->setText(m_entry.name());
    setControls();
}

void PersonsPanel::setControls()
{
    const bool editing = m_editing != nullptr;
    const bool hasName = !txtName->text().isEmpty();
    const bool hasPicture = editing && !m_editing->record().size.isEmpty();
    optRectangle->setEnabled(editing);
    optArrow->setEnabled(editing);
    txtName->setEnabled(editing);
    lblHint->setEnabled(editing);
    cmdShowIndex->setEnabled(editing && !m_entry.edited());
    cmdShowPointer->setEnabled(hasPicture && !m_view.pointerShown());
    cmdHidePointer->setEnabled(editing && m_view.pointerShown());
    lblPointerHint->setEnabled(editing && m_view.pointerShown());
    cmdOKName->setEnabled(editing && hasName);
    cmdCancelName->setEnabled(editing && (hasName || m_entry.edited() || m_view.pointerShown()));
    cmdEditName->setEnabled(editing && selected() && !m_entry.edited());
    cmdRemove->setEnabled(editing && selected() && !m_entry.edited());
    hfgPersons->setEnabled(!m_entry.edited());
}

bool PersonsPanel::acceptName()
{
    if (m_editing == nullptr || txtName->text().isEmpty()) {
        return false;
    }
    try {
        const QString name = m_entry.name();
        const auto place = m_view.pointerShown() ? std::optional(m_view.pointerPlace()) : std::nullopt;
        if (!m_entry.accept(m_editing->pendingMarks(), place, m_environment.talk)) {
            return false;
        }
        refresh();
        const auto& all = marks();
        const auto entered =
            std::find_if(all.begin(), all.end(), [&name](const PersonMark& mark) { return mark.name == name; });
        select(entered == all.end() ? std::nullopt : std::optional(static_cast<std::size_t>(entered - all.begin())));
    } catch (const std::exception& exception) {
        m_environment.talk.tell(appmessages::CannotEnterName(ReasonText(exception)));
        return false;
    }
    txtName->setFocus();
    return true;
}

bool PersonsPanel::enterPendingName()
{
    return txtName->text().trimmed().isEmpty() || acceptName();
}

void PersonsPanel::cancelName()
{
    const std::optional<std::size_t> edited = m_entry.edited();
    m_entry.clear();
    m_view.hidePointer();
    showEntry();
    showMarks();
    if (edited) {
        select(edited);
    }
    setControls();
}

void PersonsPanel::editName()
{
    const std::optional<std::size_t> mark = selected();
    if (m_editing == nullptr || !mark) {
        return;
    }
    m_entry.edit(m_editing->marks(), *mark);
    if (const auto& place = marks()[*mark].place) {
        m_view.showPointer(tool(), place);
    }
    showEntry();
    txtName->setFocus();
    txtName->selectAll();
}

void PersonsPanel::remove()
{
    const std::optional<std::size_t> mark = selected();
    if (m_editing == nullptr || !mark) {
        return;
    }
    m_editing->pendingMarks().remove(*mark);
    fillList();
    select(marks().empty() ? std::nullopt : std::optional(std::min(*mark, marks().size() - 1)));
}

void PersonsPanel::showPointer()
{
    const std::optional<std::size_t> mark = m_entry.edited();
    m_view.showPointer(tool(), mark ? marks()[*mark].place : std::nullopt);
    m_view.setFocus();
    setControls();
}

void PersonsPanel::hidePointer()
{
    m_view.hidePointer();
    setControls();
}

void PersonsPanel::chooseTool(PointerTool chosen)
{
    const bool pointerShown = m_view.pointerShown();
    if (m_editing != nullptr && m_editing->RectangleOnOff(chosen) && pointerShown) {
        const MarkPlace place = m_view.pointerPlace();
        m_view.showPointer(tool(), MarkPlace{place.x, place.y, std::nullopt, std::nullopt});
    }
    (tool() == PointerTool::Rectangle ? optRectangle : optArrow)->setChecked(true);
    showMarks();
}

void PersonsPanel::pickPerson()
{
    const std::optional<ChosenPerson> person = m_picker ? m_picker() : std::nullopt;
    if (!person) {
        return;
    }
    m_entry.pick(person->id, person->name);
    showEntry();
    txtName->setFocus();
}

} // namespace stemwright
