// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "index/namesearch.h"

#include <QtCore/QAbstractTableModel>
#include <QtWidgets/QWidget>

class QLineEdit;
class QPushButton;
class QTableView;

/// The list of all individuals with its search: the grid, the box in which a name is typed, and the buttons Find, Next
/// and Previous. Rows and text follow each other by the rules of NameSearch. Nothing here fails. Stands on the name
/// index.
namespace stemwright
{

class Notice;

/// A column of the list and its caption.
struct NameListColumn {
    NameColumn column;
    QString caption;
};

class NameListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    NameListModel(NameIndex& index, std::vector<NameListColumn> columns, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Tells the grid that the index was sorted.
    void sorted();

private:
    NameIndex& m_index;
    std::vector<NameListColumn> m_columns;
};

enum class HeaderClicks { Ignored, Sort };

class NameListPanel : public QWidget
{
    Q_OBJECT

public:
    /// `index` must hold somebody; it and `talk` must outlive the panel.
    NameListPanel(NameIndex& index, const char* gridName, std::vector<NameListColumn> columns, HeaderClicks clicks,
                  Talk& talk);

    const NameSearch& search() const { return m_search; }

    /// Disables a button that acts on the current person while what is typed fits nobody: it would act on the last one
    /// who was current.
    void needsPerson(QPushButton& button);

Q_SIGNALS:
    /// A person was double-clicked, or Return pressed on him.
    void activated();
    void fitsChanged(bool fits);

private:
    void connectControls(HeaderClicks clicks);
    void textTyped(const QString& text);
    void rowChanged(const QModelIndex& current);
    void sortBy(int section);
    /// Runs a search and shows where it led.
    void run(bool (NameSearch::*procedure)(Talk&));
    void showCurrent();
    void showFit();
    void setButtons();

    NameIndex& m_index;
    Talk& m_talk;
    NameSearch m_search;
    std::vector<NameListColumn> m_columns;
    NameListModel* m_model;
    QTableView* m_grid;
    QLineEdit* txtName;
    Notice* m_nobody;
    QPushButton* cmdFind;
    QPushButton* cmdNext;
    QPushButton* cmdPrevious;
    bool m_following = false;
};

} // namespace stemwright
