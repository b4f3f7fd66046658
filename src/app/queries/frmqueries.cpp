// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/queries/frmqueries.h"

#include "app/common/controls.h"
#include "app/common/namedrowspanel.h"
#include "app/queries/frmeditquery.h"
#include "app/queries/frmnewquery.h"
#include "queries/messages.h"
#include "queries/querymanager.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

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
        m_queries->fill(current.isEmpty() ? m_manager.selected() : current);
        RememberPlace(*this, environment.settings);
    }

    const std::optional<QString>& toRun() const { return m_toRun; }

private:
    void layOut()
    {
        QLabel* explanation = MakeLabel("lblExplanation", querymessages::QueryListExplanation());
        explanation->setWordWrap(true);
        using Needs = NamedRowsPanel::Needs;
        m_queries->addButton(MakeButton("cmdNew", QStringLiteral("&New...")), Needs::Nothing, [this] { create(); });
        m_queries->addButton(MakeButton("cmdEdit", QStringLiteral("&Edit...")), Needs::Row, [this] { edit(); });
        m_queries->addRenameAndDelete();
        m_queries->addSpace();
        m_queries->addButton(MakeButton("cmdRun", QStringLiteral("&Run")), Needs::Row, [this] { run(); });
        m_queries->addButton(MakeButton("cmdClose", QStringLiteral("&Close")), Needs::Nothing, [this] { reject(); });
        connect(m_queries, &NamedRowsPanel::activated, this, &frmQueries::run);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addWidget(m_queries, 1);
        m_queries->setFocus();
    }

    void create()
    {
        if (AskForNewQuery(m_manager, m_queries->selected(), *this)) {
            m_queries->fill(m_manager.selected());
        }
    }

    void edit()
    {
        const QString name = m_queries->selected();
        if (EditQuery(m_connection, m_environment, name, m_picker, this) == QueryEditingEnd::Run) {
            m_toRun = name;
            accept();
        }
    }

    void run()
    {
        const QString name = m_queries->selected();
        if (m_manager.run(name)) {
            m_toRun = name;
            accept();
        }
    }

    Connection& m_connection;
    Environment& m_environment;
    const PersonPicker& m_picker;
    QueryManager m_manager;
    std::optional<QString> m_toRun;
    NamedRowsPanel* m_queries = new NamedRowsPanel(m_manager, "lstQueries");
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
