// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/treedefinitionspanel.h"

#include "app/common/controls.h"
#include "store/engine/engineerror.h"
#include "web/setup/setupmessages.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QIcon>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright
{

namespace
{

QIcon TreeIconOf(int icon, const ApplicationFolder& application)
{
    const std::optional<QString> file = TreeIconFile(icon, application);
    return file ? QIcon(*file) : QIcon();
}

QComboBox* MakeList(const char* name)
{
    auto* list = new QComboBox;
    list->setObjectName(QLatin1StringView(name));
    LetWheelPass(*list);
    return list;
}

} // namespace

TreeDefinitionsPanel::TreeDefinitionsPanel(TreeEditing& trees, Environment& environment, const PersonPicker& picker,
                                           const std::function<void()>& changed)
    : m_trees(trees), m_environment(environment), m_picker(picker), m_changed(changed),
      dtgTrees(MakeGrid("dtgTrees", QStringLiteral("Family trees of the site"), m_model)),
      cboDisplay(MakeList("cboDisplay")), cboIcon(MakeList("cboIcon")),
      cmdAdd(MakeButton("cmdAdd", QStringLiteral("&Add"))), cmdEdit(MakeButton("cmdEdit", QStringLiteral("&Edit"))),
      cmdApply(MakeButton("cmdApply", QStringLiteral("A&pply"))),
      cmdDelete(MakeButton("cmdDelete", QStringLiteral("&Delete"))),
      cmdIndex(MakeButton("cmdIndex", QStringLiteral("&Index..."), QStringLiteral("Choose the head of the tree")))
{
    fillLists();
    prepareGrid();
    layOut();
    const auto act = [this](QPushButton* button, void (TreeDefinitionsPanel::*action)()) {
        connect(button, &QPushButton::clicked, this,
                [this, action] { attempt([this, action] { (this->*action)(); }); });
    };
    act(cmdEdit, &TreeDefinitionsPanel::edit);
    act(cmdDelete, &TreeDefinitionsPanel::remove);
    act(cmdIndex, &TreeDefinitionsPanel::chooseHead);
    connect(cmdAdd, &QPushButton::clicked, this, [this] { attempt([this] { m_trees.add(); }); });
    connect(cmdApply, &QPushButton::clicked, this, [this] { attempt([this] { m_trees.apply(); }); });
    connect(cboDisplay, &QComboBox::textActivated, this,
            [this](const QString& display) { attempt([this, &display] { m_trees.setDisplay(display); }); });
    connect(cboIcon, &QComboBox::textActivated, this,
            [this](const QString& icon) { attempt([this, &icon] { m_trees.setIcon(icon.toInt()); }); });
}

void TreeDefinitionsPanel::fillLists()
{
    cboDisplay->addItems(TreeDisplays());
    for (int icon = 1; TreeIconFile(icon, m_environment.application); ++icon) {
        cboIcon->addItem(TreeIconOf(icon, m_environment.application), QString::number(icon));
    }
}

void TreeDefinitionsPanel::prepareGrid()
{
    m_model.setHorizontalHeaderLabels({QStringLiteral("Tree Head Name"), QStringLiteral("Tree Type")});
    dtgTrees->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    dtgTrees->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    constexpr int fewestRows = 4;
    dtgTrees->setMinimumHeight((fewestRows + 1) * dtgTrees->verticalHeader()->defaultSectionSize());
    connect(dtgTrees->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TreeDefinitionsPanel::rowSelected);
    connect(dtgTrees, &QTableView::activated, this, [this] { cmdEdit->click(); });
}

void TreeDefinitionsPanel::layOut()
{
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {cmdAdd, cmdEdit, cmdApply, cmdDelete, cmdIndex}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* upper = new QHBoxLayout;
    upper->addWidget(dtgTrees, 1);
    upper->addLayout(buttons);
    auto* lower = new QHBoxLayout;
    for (const auto& [caption, list] :
         {std::pair(QStringLiteral("Tree t&ype:"), cboDisplay), {QStringLiteral("Tree i&con:"), cboIcon}}) {
        auto* label = new QLabel(caption);
        label->setBuddy(list);
        lower->addWidget(label);
        lower->addWidget(list);
    }
    lower->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(upper, 1);
    layout->addLayout(lower);
}

void TreeDefinitionsPanel::refresh()
{
    m_definitions = m_trees.definitions();
    if (!m_trees.edited() && m_definitions.size() == 1 && !m_definitions.front().headId) {
        m_trees.edit(m_definitions.front().number);
    }
    fillGrid();
    showSelected();
}

void TreeDefinitionsPanel::fillGrid()
{
    const QScopedValueRollback filling(m_filling, true);
    const std::optional<TreeDefinition>& edited = m_trees.edited();
    int current = dtgTrees->currentIndex().row();
    m_model.removeRows(0, m_model.rowCount());
    for (TreeDefinition& definition : m_definitions) {
        if (edited && edited->number == definition.number) {
            definition = *edited;
            current = m_model.rowCount();
        }
        m_model.appendRow({new QStandardItem(TreeIconOf(definition.icon, m_environment.application),
                                             definition.headName.simplified()),
                           new QStandardItem(definition.display)});
    }
    // By itself the grid would see to that when it is shown next.
    dtgTrees->resizeColumnToContents(1);
    dtgTrees->setCurrentIndex(m_model.index(std::clamp(current, 0, m_model.rowCount() - 1), 0));
}

std::optional<TreeDefinition> TreeDefinitionsPanel::selected() const
{
    const int row = dtgTrees->currentIndex().row();
    return row < 0 ? std::nullopt : std::optional(m_definitions[static_cast<std::size_t>(row)]);
}

void TreeDefinitionsPanel::showSelected()
{
    const std::optional<TreeDefinition> shown = selected();
    const bool editing = m_trees.edited().has_value();
    cboDisplay->setCurrentText(shown ? shown->display : QString());
    cboIcon->setCurrentIndex(shown ? shown->icon - 1 : -1);
    cmdEdit->setEnabled(shown && !editing);
    cmdDelete->setEnabled(shown.has_value());
    cmdIndex->setEnabled(shown.has_value());
    for (QWidget* control : std::initializer_list<QWidget*>{cmdApply, cboDisplay, cboIcon}) {
        control->setEnabled(editing);
    }
}

void TreeDefinitionsPanel::rowSelected()
{
    if (m_filling) {
        return;
    }
    if (m_trees.edited() && selected()) {
        attempt([this] { edit(); });
    } else {
        showSelected();
    }
}

void TreeDefinitionsPanel::edit()
{
    m_trees.edit(selected()->number);
}

void TreeDefinitionsPanel::remove()
{
    m_trees.remove(selected()->number);
}

void TreeDefinitionsPanel::chooseHead()
{
    if (!m_trees.mayChooseHead()) {
        return;
    }
    if (const auto person = m_picker()) {
        if (!m_trees.edited()) {
            edit();
        }
        m_trees.setHead(person->id);
    }
}

void TreeDefinitionsPanel::attempt(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::exception& exception) {
        m_environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
    }
    refresh();
    m_changed();
}

} // namespace stemwright
