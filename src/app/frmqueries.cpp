// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/frmqueries.h"

#include "app/controls.h"
#include "app/frmeditquery.h"
#include "app/frmnewquery.h"
#include "queries/messages.h"
#include "queries/querymanager.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

class frmQueries : public QDialog
{
public:
    frmQueries(Connection& connection, Environment& environment, const QString& current, const PersonPicker& picker,
               QWidget* parent)
        : QDialog(parent), m_connection(connection), m_environment(environment), m_picker(picker),
          m_manager(connection, environment)
    {
        setObjectName(QStringLiteral("frmQueries"));
        setWindowTitle(QStringLiteral("Picture List Queries"));
        ResizeForLetters(*this, 460, 380);
        layOut();
        fill(current.isEmpty() ? m_manager.selected() : current);
        RememberPlace(*this, environment.settings);
    }

    const std::optional<QString>& toRun() const { return m_toRun; }

private:
    void layOut()
    {
        QLabel* explanation = MakeLabel("lblExplanation", querymessages::QueryListExplanation());
        explanation->setWordWrap(true);
        lstQueries->setObjectName(QStringLiteral("lstQueries"));
        LetCopy(*lstQueries);
        connect(lstQueries, &QListWidget::itemActivated, this, &frmQueries::run);
        connect(lstQueries, &QListWidget::currentRowChanged, this, &frmQueries::setButtons);
        auto* buttons = new QVBoxLayout;
        const auto add = [this, buttons](QPushButton* button, void (frmQueries::*procedure)()) {
            connect(button, &QPushButton::clicked, this, procedure);
            buttons->addWidget(button);
        };
        add(MakeButton("cmdNew", QStringLiteral("&New...")), &frmQueries::create);
        add(cmdEdit, &frmQueries::edit);
        add(cmdRename, &frmQueries::rename);
        add(cmdDelete, &frmQueries::remove);
        buttons->addSpacing(12);
        add(cmdRun, &frmQueries::run);
        add(MakeButton("cmdClose", QStringLiteral("&Close")), &frmQueries::reject);
        buttons->addStretch();
        auto* lower = new QHBoxLayout;
        lower->addWidget(lstQueries, 1);
        lower->addLayout(buttons);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addLayout(lower, 1);
        lstQueries->setFocus();
    }

    QString selected() const
    {
        return lstQueries->currentItem() != nullptr ? lstQueries->currentItem()->text() : QString();
    }

    void fill(const QString& select)
    {
        lstQueries->clear();
        lstQueries->addItems(m_manager.names());
        const QList<QListWidgetItem*> found = lstQueries->findItems(select, Qt::MatchFixedString);
        lstQueries->setCurrentRow(found.isEmpty() ? 0 : lstQueries->row(found.constFirst()));
        setButtons();
    }

    void setButtons()
    {
        for (QPushButton* button : {cmdEdit, cmdRename, cmdDelete, cmdRun}) {
            button->setEnabled(lstQueries->currentRow() >= 0);
        }
    }

    void create()
    {
        if (AskForNewQuery(m_manager, selected(), *this)) {
            fill(m_manager.selected());
        }
    }

    void edit()
    {
        const QString name = selected();
        if (EditQuery(m_connection, m_environment, name, m_picker, this) == QueryEditingEnd::Run) {
            m_toRun = name;
            accept();
        }
    }

    void rename()
    {
        if (m_manager.rename(selected())) {
            fill(m_manager.selected());
        }
    }

    void remove()
    {
        if (m_manager.remove(selected())) {
            fill(m_manager.selected());
        }
    }

    void run()
    {
        if (m_manager.run(selected())) {
            m_toRun = selected();
            accept();
        }
    }

    Connection& m_connection;
    Environment& m_environment;
    const PersonPicker& m_picker;
    QueryManager m_manager;
    std::optional<QString> m_toRun;
    QListWidget* lstQueries = new QListWidget;
    QPushButton* cmdEdit = MakeButton("cmdEdit", QStringLiteral("&Edit..."));
    QPushButton* cmdRename = MakeButton("cmdRename", QStringLiteral("Rena&me..."));
    QPushButton* cmdDelete = MakeButton("cmdDelete", QStringLiteral("&Delete"));
    QPushButton* cmdRun = MakeButton("cmdRun", QStringLiteral("&Run"));
};

} // namespace

std::optional<QString> ShowQueries(Connection& connection, Environment& environment, const QString& current,
                                   const PersonPicker& picker, QWidget* parent)
{
    frmQueries window(connection, environment, current, picker, parent);
    window.exec();
    return window.toRun();
}

} // namespace stemwright
