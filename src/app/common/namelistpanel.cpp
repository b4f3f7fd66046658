// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/namelistpanel.h"

#include "app/common/controls.h"
#include "app/common/notice.h"
#include "index/messages.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright
{

NameListModel::NameListModel(NameIndex& index, std::vector<NameListColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), m_index(index), m_columns(std::move(columns))
{
}

int NameListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_index.size());
}

int NameListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant NameListModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    const NameRow row = m_index.rowAt(static_cast<std::size_t>(index.row()));
    switch (m_columns[static_cast<std::size_t>(index.column())].column) {
    case NameColumn::PersonId:
        return QString::number(m_index.id(row));
    case NameColumn::Name:
        return m_index.fullName(row);
    case NameColumn::BirthDate:
        return m_index.birthDate(row);
    case NameColumn::DeathDate:
        return m_index.deathDate(row);
    }
    return {};
}

QVariant NameListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return m_columns[static_cast<std::size_t>(section)].caption;
}

void NameListModel::sorted()
{
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

NameListPanel::NameListPanel(NameIndex& index, const char* gridName, std::vector<NameListColumn> columns,
                             HeaderClicks clicks, Talk& talk)
    : m_index(index), m_talk(talk), m_search(index), m_columns(columns),
      m_model(new NameListModel(index, std::move(columns), this)),
      m_grid(MakeGrid(gridName, QStringLiteral("Index of names"), *m_model)), txtName(MakeLine("txtName")),
      m_nobody(new Notice(QStringLiteral("lblNobody"))), cmdFind(MakeButton("cmdFind", QStringLiteral("&Find..."))),
      cmdNext(MakeButton("cmdNext", QStringLiteral("Ne&xt"))),
      cmdPrevious(MakeButton("cmdPrevious", QStringLiteral("&Previous")))
{
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        const int section = static_cast<int>(column);
        const bool isName = m_columns[column].column == NameColumn::Name;
        m_grid->horizontalHeader()->setSectionResizeMode(section,
                                                         isName ? QHeaderView::Stretch : QHeaderView::Interactive);
        m_grid->setColumnWidth(section, m_grid->fontMetrics().averageCharWidth() * 16);
    }

    auto* label = new QLabel(QStringLiteral("&Name:"));
    label->setBuddy(txtName);
    QHBoxLayout* search = MakeRow({label, txtName, cmdFind, cmdNext, cmdPrevious});
    search->setStretchFactor(txtName, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(search);
    layout->addWidget(m_nobody);
    layout->addWidget(m_grid, 1);
    connectControls(clicks);
    showCurrent();
    txtName->clear();
    txtName->setFocus();
}

void NameListPanel::connectControls(HeaderClicks clicks)
{
    connect(txtName, &QLineEdit::textChanged, this, &NameListPanel::textTyped);
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &NameListPanel::rowChanged);
    // A click on the current row chooses it, too.
    connect(m_grid, &QTableView::clicked, this, &NameListPanel::rowChanged);
    connect(m_grid, &QTableView::activated, this, &NameListPanel::activated);
    connect(cmdFind, &QPushButton::clicked, this, [this] { run(&NameSearch::find); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { run(&NameSearch::findNext); });
    connect(cmdPrevious, &QPushButton::clicked, this, [this] { run(&NameSearch::findPrevious); });
    if (clicks == HeaderClicks::Sort) {
        m_grid->horizontalHeader()->setSectionsClickable(true);
        connect(m_grid->horizontalHeader(), &QHeaderView::sectionClicked, this, &NameListPanel::sortBy);
    } else {
        m_grid->horizontalHeader()->setSectionsClickable(false);
    }
}

void NameListPanel::needsPerson(QPushButton& button)
{
    connect(this, &NameListPanel::fitsChanged, &button, &QPushButton::setEnabled);
}

void NameListPanel::textTyped(const QString& text)
{
    if (m_following) {
        return;
    }
    m_search.setText(text);
    showCurrent();
}

void NameListPanel::rowChanged(const QModelIndex& current)
{
    if (m_following || !current.isValid()) {
        return;
    }
    m_search.goTo(m_index.rowAt(static_cast<std::size_t>(current.row())));
    const QScopedValueRollback following(m_following, true);
    txtName->setText(m_search.text());
    showFit();
}

void NameListPanel::run(bool (NameSearch::*procedure)(Talk&))
{
    if ((m_search.*procedure)(m_talk)) {
        showCurrent();
        const QScopedValueRollback following(m_following, true);
        txtName->setText(m_search.text());
    } else {
        QApplication::beep();
    }
    setButtons();
}

void NameListPanel::sortBy(int section)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_search.sortBy(m_columns[static_cast<std::size_t>(section)].column);
    QApplication::restoreOverrideCursor();
    m_model->sorted();
    QHeaderView& header = *m_grid->horizontalHeader();
    header.setSortIndicatorShown(true);
    header.setSortIndicator(section, m_index.sort()->direction);
    showCurrent();
}

void NameListPanel::showCurrent()
{
    const QScopedValueRollback following(m_following, true);
    const QModelIndex index = m_model->index(static_cast<int>(m_index.positionOf(m_search.currentRow())), 0);
    // A name that was not in sight comes with its neighbours.
    const bool inSight = m_grid->viewport()->rect().contains(m_grid->visualRect(index));
    m_grid->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_grid->scrollTo(index, inSight ? QAbstractItemView::EnsureVisible : QAbstractItemView::PositionAtCenter);
    showFit();
    setButtons();
}

void NameListPanel::showFit()
{
    m_nobody->setText(m_search.fits() ? QString() : indexmessages::NobodyBeginsSo());
    Q_EMIT fitsChanged(m_search.fits());
}

void NameListPanel::setButtons()
{
    cmdNext->setEnabled(m_search.canFindNext());
    cmdPrevious->setEnabled(m_search.canFindPrevious());
}

} // namespace stemwright
