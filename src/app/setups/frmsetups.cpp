// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/setups/frmsetups.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "app/common/namedrowspanel.h"
#include "app/setups/frmnewsetup.h"
#include "app/wizard/frmsitewizard.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

class frmSetups : public QDialog
{
public:
    frmSetups(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent)
        : QDialog(parent), m_file(file), m_environment(environment), m_picker(picker),
          m_manager(file.connection(), environment)
    {
        setObjectName(QStringLiteral("frmSetups"));
        setWindowTitle(QStringLiteral("Web Site Setups"));
        ResizeForLetters(*this, 460, 360);
        layOut();
        m_setups->fill(m_manager.selected());
        RememberPlace(*this, environment.settings);
    }

private:
    void layOut()
    {
        QLabel* explanation = MakeLabel("lblExplanation", appmessages::SetupsExplanation());
        explanation->setWordWrap(true);
        using Needs = NamedRowsPanel::Needs;
        m_setups->addButton(MakeButton("cmdNew", QStringLiteral("&New...")), Needs::Nothing, [this] { create(); });
        m_setups->addButton(MakeButton("cmdEdit", QStringLiteral("&Edit/Run...")), Needs::Row, [this] { edit(); });
        m_setups->addRenameAndDelete();
        m_setups->addSpace();
        m_setups->addButton(MakeButton("cmdClose", QStringLiteral("&Close")), Needs::Nothing, [this] { reject(); });
        connect(m_setups, &NamedRowsPanel::activated, this, &frmSetups::edit);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addWidget(m_setups, 1);
        m_setups->setFocus();
    }

    void create()
    {
        if (AskForNewSetup(m_manager, m_setups->selected(), *this)) {
            m_setups->fill(m_manager.selected());
            runWizard();
        }
    }

    void edit()
    {
        m_manager.select(m_setups->selected());
        runWizard();
    }

    void runWizard()
    {
        ShowSiteWizard(m_file, m_environment, m_manager.selected(), m_manager.wizardMode(), m_picker, this);
        // The wizard may have been left by way of other windows.
        activateWindow();
    }

    FamilyFile& m_file;
    Environment& m_environment;
    const PersonPicker& m_picker;
    SetupManager m_manager;
    NamedRowsPanel* m_setups = new NamedRowsPanel(m_manager, "lstSetups");
};

} // namespace

void ShowSetups(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent)
{
    frmSetups(file, environment, picker, parent).exec();
}

} // namespace stemwright
