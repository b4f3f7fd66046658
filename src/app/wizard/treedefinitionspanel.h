// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/personpicking.h"
#include "base/environment.h"
#include "web/setup/treeediting.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QWidget>

class QComboBox;
class QPushButton;
class QTableView;

/// The tree definitions of a setup as a grid, and controls for the one that is being edited. While one is, choosing
/// another row keeps what was changed and goes on with that row. Failures are told. Stands on web/setup/treeediting.h.
namespace stemwright
{

class TreeDefinitionsPanel : public QWidget
{
public:
    /// All must outlive it. `changed` is called after each change.
    TreeDefinitionsPanel(TreeEditing& trees, Environment& environment, const PersonPicker& picker,
                         const std::function<void()>& changed);

    /// Shows the definitions as they are now. A tree that is the only one and has no head yet is taken up at once:
    /// there is nothing else to do with it.
    void refresh();

private:
    void layOut();
    void prepareGrid();
    void fillLists();
    void fillGrid();
    void showSelected();
    /// The selected definition with the changes made to it.
    std::optional<TreeDefinition> selected() const;
    void rowSelected();

    void edit();
    void remove();
    void chooseHead();
    void attempt(const std::function<void()>& action);

    TreeEditing& m_trees;
    Environment& m_environment;
    const PersonPicker& m_picker;
    const std::function<void()>& m_changed;
    std::vector<TreeDefinition> m_definitions;
    QStandardItemModel m_model;
    bool m_filling = false;
    QTableView* dtgTrees;
    QComboBox* cboDisplay;
    QComboBox* cboIcon;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdApply;
    QPushButton* cmdDelete;
    QPushButton* cmdIndex;
};

} // namespace stemwright
