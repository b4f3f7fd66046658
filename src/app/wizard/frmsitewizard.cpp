// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/frmsitewizard.h"

#include "app/common/controls.h"
#include "app/common/help.h"
#include "app/wizard/frmconfirm.h"
#include "app/wizard/wizardpages.h"
#include "app/wizard/wizardtexts.h"
#include "store/engine/engineerror.h"
#include "web/setup/setupmessages.h"
#include "web/setup/setupmodel.h"
#include "web/sitebuild.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedWidget>

namespace stemwright
{

namespace
{

constexpr auto makers = {MakeIntroductionPage, MakeSiteKindPage, MakeFolderPage,  MakeFirstPagePage,
                         MakeGeneralPage,      MakeDisplayPage,  MakeFinishedPage};

class frmSiteWizard : public QDialog
{
public:
    frmSiteWizard(FamilyFile& file, Environment& environment, const QString& setupName, WizardMode mode,
                  const PersonPicker& picker, QWidget* parent)
        : QDialog(parent), m_editing(file.connection(), environment, setupName),
          m_context{file, environment, picker, setupName, m_editing, m_isModel, [this] { setButtons(); }}
    {
        setObjectName(QStringLiteral("frmSiteWizard"));
        setWindowTitle(wizardtexts::Caption(setupName));
        ResizeForLetters(*this, 820, 590);
        makePages();
        layOut();
        m_reached = mode == WizardMode::Edit ? last() : 0;
        showPage(0);
        RememberPlace(*this, environment.settings);
    }

    void reject() override
    {
        const bool losesRefused = page(m_current).holdsRefused() && !m_editing.edited();
        if (losesRefused ? m_context.environment.talk.ask(setupmessages::LoseChanges()) == Button::Yes
                         : m_editing.cancel()) {
            QDialog::reject();
        }
    }

protected:
    /// Return in a list acts on its entry; the next page is not meant.
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsReturnInList(*event, *this)) {
            QDialog::keyPressEvent(event);
        }
    }

private:
    void makePages()
    {
        lstPages->setObjectName(QStringLiteral("lstPages"));
        lstPages->setAccessibleName(QStringLiteral("Pages of the wizard"));
        for (const auto& make : makers) {
            WizardForm* page = make(m_context);
            m_pages.push_back(page);
            m_stack->addWidget(scrolling(page));
            lstPages->addItem(wizardtexts::PageName(page->page()));
        }
        constexpr int room = 24;
        constexpr int betweenPages = 3;
        lstPages->setSpacing(betweenPages);
        lstPages->setFixedWidth(lstPages->sizeHintForColumn(0) + ForLetters(*this, room));
        connect(lstPages, &QListWidget::currentRowChanged, this, &frmSiteWizard::goTo);
    }

    /// With large letters, a page can be higher than the screen.
    static QScrollArea* scrolling(QWidget* page)
    {
        auto* area = new QScrollArea;
        area->setWidget(page);
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        area->setFocusPolicy(Qt::NoFocus);
        return area;
    }

    void layOut()
    {
        auto* upper = new QHBoxLayout;
        upper->addWidget(lstPages);
        upper->addWidget(m_stack, 1);

        auto* line = new QFrame;
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
        QPushButton* help = MakeButton("cmdHelp", QStringLiteral("&Help"));
        QPushButton* cancel = MakeButton("cmdCancel", QStringLiteral("Cancel"));
        connect(help, &QPushButton::clicked, this, [this] { ShowHelp(m_context.environment, objectName().toLower()); });
        connect(cancel, &QPushButton::clicked, this, &frmSiteWizard::reject);
        connect(cmdSave, &QPushButton::clicked, this, &frmSiteWizard::save);
        connect(cmdBack, &QPushButton::clicked, this, [this] { goTo(m_current - 1); });
        connect(cmdNext, &QPushButton::clicked, this, [this] { goTo(m_current + 1); });
        connect(cmdFinish, &QPushButton::clicked, this, &frmSiteWizard::finish);
        auto* buttons = new QHBoxLayout;
        buttons->addWidget(help);
        buttons->addStretch();
        for (QPushButton* button : {cancel, cmdSave, cmdBack, cmdNext, cmdFinish}) {
            buttons->addWidget(button);
        }
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(upper, 1);
        layout->addWidget(line);
        layout->addLayout(buttons);
    }

    int last() const { return static_cast<int>(m_pages.size()) - 1; }

    WizardForm& page(int number) const { return *m_pages[static_cast<std::size_t>(number)]; }

    void showPage(int number)
    {
        m_current = number;
        m_reached = std::max(m_reached, number);
        page(number).refresh();
        m_stack->setCurrentIndex(number);
        const QSignalBlocker quiet(lstPages);
        for (int row = 0; row <= last(); ++row) {
            lstPages->item(row)->setFlags(row <= m_reached ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                                           : Qt::NoItemFlags);
        }
        lstPages->setCurrentRow(number);
        setButtons();
        QPushButton* main = number == last() ? cmdFinish : cmdNext;
        main->setDefault(true);
        if (!lstPages->hasFocus()) {
            QWidget* first = page(number).firstControl();
            (first != nullptr ? first : main)->setFocus();
        }
    }

    void setButtons()
    {
        cmdSave->setEnabled(m_editing.edited() || page(m_current).holdsRefused());
        cmdBack->setEnabled(m_current > 0);
        cmdNext->setEnabled(m_current < last());
        const std::optional<Message> obstacle = m_editing.obstacle();
        cmdFinish->setEnabled(!obstacle);
        // The first sentence tells what is missing, those behind it what to press in the message.
        cmdFinish->setToolTip(obstacle ? obstacle->text.section(u'.', 0, 0) + u'.' : QString());
    }

    /// What was refused has to be mended before any page is left; what is missing only keeps from going on.
    bool mayGoOnFrom(int number) { return page(number).settle() && m_editing.leavePage(page(number).page()); }

    /// Goes to a page, or to the first one on the way that must not be left.
    void goTo(int number)
    {
        int reached = m_current;
        if (number > m_current) {
            while (reached < number && mayGoOnFrom(reached)) {
                ++reached;
            }
        } else if (page(m_current).settle()) {
            reached = number;
        }
        if (reached != m_current) {
            showPage(reached);
        } else {
            stay();
        }
    }

    /// Shows the page as it was left: whoever typed what was refused goes on typing there.
    void stay()
    {
        page(m_current).refresh();
        const QSignalBlocker quiet(lstPages);
        lstPages->setCurrentRow(m_current);
        setButtons();
    }

    void save()
    {
        if (page(m_current).settle()) {
            m_editing.save();
        }
        stay();
    }

    void finish()
    {
        for (int number = 0; number <= last(); ++number) {
            if (!mayGoOnFrom(number)) {
                showPage(number);
                return;
            }
        }
        const std::optional<QString> index = BuildWebPages(m_context.file, m_editing, m_context.environment);
        if (!index) {
            stay();
            // The last message belonged to a window that has gone with it.
            activateWindow();
            return;
        }
        if (m_isModel) {
            SaveAsModel(m_context.file.connection(), m_context.setupName, m_context.environment);
        }
        ConfirmWebPages(*index, m_context.environment, this);
        accept();
    }

    SetupEditing m_editing;
    bool m_isModel = false;
    WizardContext m_context;
    std::vector<WizardForm*> m_pages;
    int m_current = 0;
    /// The last page that the list offers.
    int m_reached = 0;
    QListWidget* lstPages = new QListWidget;
    QStackedWidget* m_stack = new QStackedWidget;
    QPushButton* cmdSave = MakeButton("cmdSave", QStringLiteral("&Save"));
    QPushButton* cmdBack = MakeButton("cmdBack", QStringLiteral("< &Back"));
    QPushButton* cmdNext = MakeButton("cmdNext", QStringLiteral("&Next >"));
    QPushButton* cmdFinish = MakeButton("cmdFinish", QStringLiteral("&Finish"));
};

} // namespace

void ShowSiteWizard(FamilyFile& file, Environment& environment, const QString& setupName, WizardMode mode,
                    const PersonPicker& picker, QWidget* parent)
{
    try {
        frmSiteWizard(file, environment, setupName, mode, picker, parent).exec();
    } catch (const std::exception& exception) {
        environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
    }
}

} // namespace stemwright
