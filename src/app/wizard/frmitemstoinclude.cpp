// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/frmitemstoinclude.h"

#include "app/common/controls.h"
#include "app/common/groupedheader.h"
#include "app/common/messages.h"
#include "app/wizard/frmitemoptions.h"
#include "store/engine/engineerror.h"
#include "web/setup/itemcatalogue.h"
#include "web/setup/itemselection.h"
#include "web/setup/setupmessages.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright
{

namespace
{

const QStringList& Captions()
{
    static const QStringList captions{QStringLiteral("Item Name"),   QStringLiteral("Display in tree"),
                                      QStringLiteral("Before item"), QStringLiteral("Before place/ event"),
                                      QStringLiteral("After item"),  QStringLiteral("Private")};
    return captions;
}

constexpr int firstOfTree = 1;
constexpr int lastOfTree = 4;

QStringList CellsOf(const SelectedItem& item)
{
    return {item.name,      item.inTree ? QStringLiteral("Yes") : QString(), item.beforeItem, item.beforePlace,
            item.afterItem, item.isPrivate ? QStringLiteral("P") : QString()};
}

class frmItemsToInclude : public QDialog
{
public:
    frmItemsToInclude(Connection& connection, Environment& environment, SetupEditing& editing, QWidget* parent)
        : QDialog(parent), m_environment(environment), m_editing(editing), m_catalogue(LoadItemCatalogue(connection)),
          m_selection(connection, environment.talk, editing.setupName())
    {
        setObjectName(QStringLiteral("frmItemsToInclude"));
        setWindowTitle(QStringLiteral("Items to Include"));
        ResizeForLetters(*this, 1000, 480);
        prepareLists();
        layOut();
        fill(0);
        lstCatalogue->setFocus();
        RememberPlace(*this, environment.settings);
    }

    void accept() override
    {
        if (attempt([this] { m_editing.setItems(m_selection.items()); })) {
            QDialog::accept();
        }
    }

protected:
    /// Return in a list does not mean OK.
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsReturnInList(*event, *this)) {
            QDialog::keyPressEvent(event);
        }
    }

private:
    void prepareLists()
    {
        lstCatalogue->setObjectName(QStringLiteral("lstCatalogue"));
        lstCatalogue->setAccessibleName(QStringLiteral("All items"));
        for (const SelectedItem& item : m_catalogue) {
            auto* entry = new QListWidgetItem(item.name, lstCatalogue);
            entry->setToolTip(appmessages::OriginOfItem(item.table));
        }
        lstCatalogue->setCurrentRow(0);
        LetCopy(*lstCatalogue);
        connect(lstCatalogue, &QListWidget::itemActivated, this, &frmItemsToInclude::add);

        m_model.setHorizontalHeaderLabels(Captions());
        auto* header = new GroupedHeader(firstOfTree, lastOfTree, QStringLiteral("Family Tree Display"), hfgItems);
        hfgItems->setHorizontalHeader(header);
        header->setSectionResizeMode(QHeaderView::ResizeToContents);
        header->setSectionResizeMode(0, QHeaderView::Stretch);
        header->setHighlightSections(false);
        connect(hfgItems, &QTableView::activated, this, &frmItemsToInclude::editOptions);
        connect(hfgItems->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
                &frmItemsToInclude::setButtons);
    }

    void layOut()
    {
        const auto column = [this](std::initializer_list<std::pair<QPushButton*, void (frmItemsToInclude::*)()>> list) {
            auto* buttons = new QVBoxLayout;
            buttons->addStretch();
            for (const auto& [button, procedure] : list) {
                connect(button, &QPushButton::clicked, this, procedure);
                buttons->addWidget(button);
            }
            buttons->addStretch();
            return buttons;
        };
        auto* lists = new QHBoxLayout;
        lists->addWidget(lstCatalogue, 2);
        lists->addLayout(column({{cmdAdd, &frmItemsToInclude::add}, {cmdRemove, &frmItemsToInclude::remove}}));
        lists->addWidget(hfgItems, 7);
        lists->addLayout(column({{cmdUp, &frmItemsToInclude::moveUp},
                                 {cmdDown, &frmItemsToInclude::moveDown},
                                 {cmdOptions, &frmItemsToInclude::editOptions}}));
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(MakeLabel("lblHeading", appmessages::ItemsToInclude()));
        layout->addLayout(lists, 1);
        layout->addWidget(MakeOkCancel(*this));
    }

    int row() const { return hfgItems->currentIndex().row(); }

    /// Shows the items and goes to one of them.
    void fill(int wanted)
    {
        m_model.setRowCount(0);
        for (const SelectedItem& item : m_selection.items()) {
            QList<QStandardItem*> cells;
            for (const QString& text : CellsOf(item)) {
                auto* cell = new QStandardItem(text);
                cell->setToolTip(appmessages::OriginOfItem(item.table));
                cell->setTextAlignment(cells.isEmpty() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
                cells << cell;
            }
            m_model.appendRow(cells);
        }
        hfgItems->setCurrentIndex(m_model.index(std::min(wanted, m_model.rowCount() - 1), 0));
        setButtons();
    }

    void setButtons()
    {
        const bool any = row() >= 0;
        cmdRemove->setEnabled(any);
        cmdOptions->setEnabled(any);
        cmdUp->setEnabled(any && m_selection.canMoveUp(row()));
        cmdDown->setEnabled(any && m_selection.canMoveDown(row()));
    }

    /// Tells what keeps an action from being done.
    template <typename Action>
    bool attempt(Action action)
    {
        try {
            action();
            return true;
        } catch (const std::exception& exception) {
            m_environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
            return false;
        }
    }

    void add()
    {
        attempt([this] {
            if (m_selection.add(m_catalogue[static_cast<std::size_t>(lstCatalogue->currentRow())])) {
                fill(m_model.rowCount());
            }
        });
    }

    void remove()
    {
        const int removed = row();
        m_selection.remove(removed);
        fill(removed);
    }

    void moveUp() { fill(m_selection.moveUp(row())); }

    void moveDown() { fill(m_selection.moveDown(row())); }

    void editOptions()
    {
        const SelectedItem item = m_selection.items()[static_cast<std::size_t>(row())];
        const auto apply = [this](const ItemOptions& options) {
            return attempt([this, &options] {
                // Texts could be typed while the item was shown in the tree, and are kept when it no longer is.
                ItemOptions typed = options;
                typed.inTree = true;
                m_selection.setOptions(row(), typed);
                m_selection.setOptions(row(), options);
            });
        };
        EditItemOptions(item, apply, this);
        fill(row());
    }

    Environment& m_environment;
    SetupEditing& m_editing;
    std::vector<SelectedItem> m_catalogue;
    ItemSelection m_selection;
    QListWidget* lstCatalogue = new QListWidget;
    QStandardItemModel m_model;
    QTableView* hfgItems = MakeGrid("hfgItems", QStringLiteral("Items of the setup"), m_model);
    QPushButton* cmdAdd = MakeButton("cmdAdd", QStringLiteral("&Add >"));
    QPushButton* cmdRemove = MakeButton("cmdRemove", QStringLiteral("< &Remove"));
    QPushButton* cmdUp = MakeButton("cmdUp", QStringLiteral("&Up"));
    QPushButton* cmdDown = MakeButton("cmdDown", QStringLiteral("&Down"));
    QPushButton* cmdOptions = MakeButton("cmdOptions", QStringLiteral("&Options..."));
};

} // namespace

bool EditItemsToInclude(Connection& connection, Environment& environment, SetupEditing& editing, QWidget* parent)
{
    try {
        return frmItemsToInclude(connection, environment, editing, parent).exec() == QDialog::Accepted;
    } catch (const std::exception& exception) {
        environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
        return false;
    }
}

} // namespace stemwright
