// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/namedrowspanel.h"

#include "app/common/controls.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

#include <utility>

namespace stemwright
{

namespace
{

constexpr int space = 12;

} // namespace

NamedRowsPanel::NamedRowsPanel(NamedRowManager& manager, const char* list)
    : m_manager(manager), m_list(new QListWidget), m_buttons(new QVBoxLayout)
{
    m_list->setObjectName(QLatin1StringView(list));
    LetCopy(*m_list);
    connect(m_list, &QListWidget::itemActivated, this, &NamedRowsPanel::activated);
    connect(m_list, &QListWidget::currentRowChanged, this, &NamedRowsPanel::setButtons);
    // A click below the last row would only take away the sign of the row that the buttons act on.
    connect(m_list, &QListWidget::itemSelectionChanged, this, [this] {
        if (m_list->currentItem() != nullptr) {
            m_list->currentItem()->setSelected(true);
        }
    });
    setFocusProxy(m_list);
    auto* buttons = new QVBoxLayout;
    buttons->addLayout(m_buttons);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
}

void NamedRowsPanel::addButton(QPushButton* button, Needs needs, std::function<void()> action)
{
    connect(button, &QPushButton::clicked, this, std::move(action));
    m_buttons->addWidget(button);
    if (needs == Needs::Row) {
        m_needRow.push_back(button);
    }
}

void NamedRowsPanel::addRenameAndDelete()
{
    addButton(MakeButton("cmdRename", QStringLiteral("Rena&me...")), Needs::Row, [this] {
        if (m_manager.rename(selected())) {
            fill(m_manager.selected());
        }
    });
    addButton(MakeButton("cmdDelete", QStringLiteral("&Delete")), Needs::Row, [this] {
        if (m_manager.remove(selected())) {
            fill(m_manager.selected());
        }
    });
}

void NamedRowsPanel::addSpace()
{
    m_buttons->addSpacing(space);
}

QString NamedRowsPanel::selected() const
{
    return m_list->currentItem() != nullptr ? m_list->currentItem()->text() : QString();
}

void NamedRowsPanel::fill(const QString& select)
{
    m_list->clear();
    m_list->addItems(m_manager.names());
    const QList<QListWidgetItem*> found = m_list->findItems(select, Qt::MatchFixedString);
    m_list->setCurrentRow(found.isEmpty() ? 0 : m_list->row(found.constFirst()));
    setButtons();
}

void NamedRowsPanel::setButtons()
{
    for (QPushButton* button : m_needRow) {
        button->setEnabled(m_list->currentRow() >= 0);
    }
}

} // namespace stemwright
