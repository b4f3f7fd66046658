// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/oldalbum/frmindisinoldalbum.h"

#include "app/common/controls.h"
#include "app/common/texttablemodel.h"
#include "app/oldalbum/frmmatchingnames.h"
#include "oldalbum/messages.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright
{

namespace
{

enum Column { nameColumn, picturesColumn, markedColumn };

class frmIndisInOldAlbum : public QDialog
{
public:
    frmIndisInOldAlbum(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent)
        : QDialog(parent), m_connection(file.connection()), m_environment(environment), m_picker(picker),
          m_matching(m_connection, environment.talk)
    {
        setObjectName(QStringLiteral("frmIndisInOldAlbum"));
        setWindowTitle(QStringLiteral("Names in the Old Album"));
        ResizeForLetters(*this, 520, 420);
        layOut();
        showNames();
        RememberPlace(*this, environment.settings);
    }

private:
    void layOut()
    {
        QLabel* note = MakeLabel("lblNote", oldalbummessages::OldNamesNote());
        note->setWordWrap(true);
        QHeaderView& header = *hfgIndisInOldAlbum->horizontalHeader();
        header.setSectionResizeMode(nameColumn, QHeaderView::Stretch);
        header.setSectionsClickable(false);
        connect(hfgIndisInOldAlbum, &QTableView::doubleClicked, this, &frmIndisInOldAlbum::match);
        QPushButton* matchButton =
            MakeButton("cmdMatch", QStringLiteral("&Match"),
                       QStringLiteral("Match the names with individuals, from the selected one on"));
        matchButton->setDefault(true);
        connect(matchButton, &QPushButton::clicked, this, &frmIndisInOldAlbum::match);
        QPushButton* close = MakeButton("cmdClose", QStringLiteral("&Close"));
        connect(close, &QPushButton::clicked, this, &QDialog::reject);
        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        buttons->addWidget(matchButton);
        buttons->addWidget(close);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(note);
        layout->addWidget(hfgIndisInOldAlbum, 1);
        layout->addLayout(buttons);
        hfgIndisInOldAlbum->setFocus();
    }

    /// Goes to the name with which the matching would go on.
    void showNames()
    {
        m_model.reset(m_matching.names().size());
        const int row = static_cast<int>(m_matching.firstUnmarked());
        hfgIndisInOldAlbum->selectRow(row);
        hfgIndisInOldAlbum->scrollTo(m_model.index(row, 0), QAbstractItemView::PositionAtCenter);
    }

    QString cell(std::size_t row, int column) const
    {
        const OldName& name = m_matching.names()[row];
        switch (column) {
        case nameColumn:
            return name.name;
        case picturesColumn:
            return QString::number(name.pictureCount());
        case markedColumn:
            return name.marked ? QStringLiteral("Yes") : QStringLiteral("No");
        default:
            return {};
        }
    }

    void match()
    {
        const QModelIndex current = hfgIndisInOldAlbum->currentIndex();
        m_matching.begin(static_cast<std::size_t>(std::max(0, current.row())));
        ShowMatching(m_matching, m_connection, m_environment, m_picker, this);
        showNames();
    }

    Connection& m_connection;
    Environment& m_environment;
    const PersonPicker& m_picker;
    NameMatching m_matching;
    TextTableModel m_model{{QStringLiteral("Name"), QStringLiteral("Pictures"), QStringLiteral("Marked")},
                           [this](std::size_t row, int column) { return cell(row, column); },
                           this};
    QTableView* hfgIndisInOldAlbum = MakeGrid("hfgIndisInOldAlbum", QStringLiteral("Names in the old album"), m_model);
};

} // namespace

void ShowOldNames(FamilyFile& file, Environment& environment, const PersonPicker& picker, QWidget* parent)
{
    frmIndisInOldAlbum(file, environment, picker, parent).exec();
}

} // namespace stemwright
