// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/oldalbum/frmmatchingnames.h"

#include "app/common/controls.h"
#include "app/common/messages.h"
#include "app/common/texttablemodel.h"
#include "app/pictures/pictureview.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright
{

namespace
{

enum Column { nameColumn, birthColumn, deathColumn };

/// The mark that shows where an old name stands; without a place when the old album had none that is a number.
PersonMark MarkOf(const OldName& name, const OldPlace& place)
{
    bool hasX = false;
    bool hasY = false;
    const MarkPlace stands{place.x.toInt(&hasX), place.y.toInt(&hasY), {}, {}};
    return {0, name.name, hasX && hasY ? std::optional(stands) : std::nullopt, 0};
}

class frmMatchingNames : public QDialog
{
public:
    frmMatchingNames(NameMatching& matching, Connection& connection, Environment& environment,
                     const PersonPicker& picker, QWidget* parent)
        : QDialog(parent), m_matching(matching), m_connection(connection), m_picker(picker),
          m_view(new PictureView(environment.application.file(QStringLiteral("ArrowPointer.gif")), this))
    {
        setObjectName(QStringLiteral("frmMatchingNames"));
        setWindowTitle(QStringLiteral("Matching Names"));
        ResizeForLetters(*this, 820, 460);
        layOut();
        connectControls();
        showName();
        RememberPlace(*this, environment.settings);
    }

    /// Closing the window is a wish to stop, too.
    void reject() override
    {
        m_matching.cancel();
        showName();
    }

private:
    void layOut()
    {
        QFont large = lblOldName->font();
        large.setPointSizeF(large.pointSizeF() * 1.3);
        large.setBold(true);
        lblOldName->setFont(large);
        lblOldName->setWordWrap(true);
        lblPrompt->setWordWrap(true);
        dtgMatchingNames->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
        dtgMatchingNames->horizontalHeader()->setSectionsClickable(false);
        auto* left = new QVBoxLayout;
        left->addWidget(lblOldName);
        left->addWidget(lblPlace);
        left->addWidget(lblPrompt);
        left->addWidget(dtgMatchingNames, 1);
        auto* upper = new QHBoxLayout;
        upper->addLayout(left, 3);
        upper->addWidget(m_view, 2);
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(upper, 1);
        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        for (QPushButton* button : {cmdAccept, cmdNext, cmdIndex, cmdCancel}) {
            buttons->addWidget(button);
        }
        layout->addLayout(buttons);
    }

    void connectControls()
    {
        connect(dtgMatchingNames, &QTableView::doubleClicked, this, &frmMatchingNames::acceptProposal);
        connect(cmdAccept, &QPushButton::clicked, this, &frmMatchingNames::acceptProposal);
        connect(cmdNext, &QPushButton::clicked, this, &frmMatchingNames::next);
        connect(cmdIndex, &QPushButton::clicked, this, &frmMatchingNames::chooseFromIndex);
        connect(cmdCancel, &QPushButton::clicked, this, &frmMatchingNames::reject);
    }

    /// Shows the current name, or closes the window when there is none any more.
    void showName()
    {
        if (!m_matching.isRunning()) {
            QDialog::accept();
            return;
        }
        const OldName& name = m_matching.current();
        lblOldName->setText(name.name);
        lblPlace->setText(
            appmessages::NameOfMany(m_matching.position() + 1, m_matching.names().size(), name.pictureCount()));
        lblPrompt->setText(m_matching.prompt());
        const std::size_t proposals = m_matching.proposals().size();
        m_model.reset(proposals);
        dtgMatchingNames->selectRow(0);
        cmdAccept->setEnabled(proposals > 0);
        cmdIndex->setEnabled(m_matching.individuals().size() > 0);
        // Return does what is most likely wanted.
        (proposals > 0 ? cmdAccept : cmdNext)->setDefault(true);
        (proposals > 0 ? static_cast<QWidget*>(dtgMatchingNames) : cmdNext)->setFocus();
        showPicture(name);
    }

    void showPicture(const OldName& name)
    {
        if (name.places.empty()) {
            m_view->showText(appmessages::NoPictureOfName());
            return;
        }
        ShowStoredPicture(*m_view, m_connection, name.places.front().pictureId);
        m_view->showMarks({MarkOf(name, name.places.front())}, PointerTool::Arrow, 0);
    }

    QString cell(std::size_t row, int column) const
    {
        const NameIndex& individuals = m_matching.individuals();
        const NameRow person = m_matching.proposals()[row];
        switch (column) {
        case nameColumn:
            return individuals.fullName(person);
        case birthColumn:
            return individuals.birthDate(person);
        case deathColumn:
            return individuals.deathDate(person);
        default:
            return {};
        }
    }

    void acceptProposal()
    {
        const int row = dtgMatchingNames->currentIndex().row();
        if (row >= 0) {
            m_matching.accept(m_matching.proposals()[static_cast<std::size_t>(row)]);
            showName();
        }
    }

    void next()
    {
        m_matching.next();
        showName();
    }

    void chooseFromIndex()
    {
        if (const std::optional<ChosenPerson> person = m_picker()) {
            m_matching.accept(*person);
            showName();
        }
    }

    NameMatching& m_matching;
    Connection& m_connection;
    const PersonPicker& m_picker;
    TextTableModel m_model{{QStringLiteral("Name"), QStringLiteral("Birth Date"), QStringLiteral("Death Date")},
                           [this](std::size_t row, int column) { return cell(row, column); },
                           this};
    QTableView* dtgMatchingNames = MakeGrid("dtgMatchingNames", QStringLiteral("Proposed individuals"), m_model);
    QLabel* lblOldName = MakeLabel("lblOldName");
    QLabel* lblPlace = MakeLabel("lblPlace");
    QLabel* lblPrompt = MakeLabel("lblPrompt");
    PictureView* m_view;
    QPushButton* cmdAccept = MakeButton("cmdAccept", QStringLiteral("&Accept"),
                                        QStringLiteral("The selected individual is the person in the pictures"));
    QPushButton* cmdNext = MakeButton("cmdNext", QStringLiteral("&Next"),
                                      QStringLiteral("Mark the person in the pictures by this name only"));
    QPushButton* cmdIndex =
        MakeButton("cmdIndex", QStringLiteral("&Index..."), QStringLiteral("Display index of names"));
    QPushButton* cmdCancel = MakeButton("cmdCancel", QStringLiteral("&Cancel"), QStringLiteral("Stop matching names"));
};

} // namespace

void ShowMatching(NameMatching& matching, Connection& connection, Environment& environment, const PersonPicker& picker,
                  QWidget* parent)
{
    frmMatchingNames(matching, connection, environment, picker, parent).exec();
}

} // namespace stemwright
