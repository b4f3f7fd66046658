// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/file/namedrows.h"

#include <QtWidgets/QWidget>

class QBoxLayout;
class QListWidget;
class QPushButton;

/// The list of rows that the user keeps under names, with the buttons that act on them beside it. It renames and
/// deletes by itself; what else can be done is its window's. What goes wrong the manager tells. Stands on the managing
/// of named rows.
namespace stemwright
{

class NamedRowsPanel : public QWidget
{
    Q_OBJECT

public:
    /// When a button can be pressed.
    enum class Needs { Nothing, Row };

    /// `list` is the object name of the list. `manager` must outlive the panel.
    NamedRowsPanel(NamedRowManager& manager, const char* list);

    /// Adds a button below those that are there.
    void addButton(QPushButton* button, Needs needs, std::function<void()> action);
    /// Adds `cmdRename` and `cmdDelete`.
    void addRenameAndDelete();
    /// Sets what follows apart.
    void addSpace();

    QString selected() const;
    /// Reads the names anew and goes to one of them, or to the first.
    void fill(const QString& select);

Q_SIGNALS:
    /// The row that is selected was double-clicked.
    void activated();

private:
    void setButtons();

    NamedRowManager& m_manager;
    QListWidget* m_list;
    QBoxLayout* m_buttons;
    std::vector<QPushButton*> m_needRow;
};

} // namespace stemwright
