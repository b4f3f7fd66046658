// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/queries/frmeditquery.h"

#include "app/common/controls.h"
#include "app/common/frmdate.h"
#include "queries/messages.h"
#include "queries/queryediting.h"
#include "store/engine/engineerror.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

const QString personGroup = QStringLiteral("Indi");

/// A control's object name: what it is, and the column of the query that it shows.
QString ControlName(const char* kind, const QString& column)
{
    return QLatin1StringView(kind) + column;
}

constexpr int usualLetters = 24;

/// A field that is as long as its usual content, and shorter where the screen is too narrow for that.
QLineEdit* Field(const QString& column)
{
    QLineEdit* line = MakeLine("");
    line->setObjectName(ControlName("txt", column));
    line->setAccessibleName(column);
    line->setMaximumWidth(line->fontMetrics().averageCharWidth() * usualLetters);
    line->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return line;
}

/// Controls side by side, as wide as they need to be.
QHBoxLayout* Row(std::initializer_list<QWidget*> controls)
{
    QHBoxLayout* row = MakeRow(controls);
    row->addStretch();
    return row;
}

class frmEditQuery : public QDialog
{
public:
    frmEditQuery(Connection& connection, Environment& environment, const QString& name, const PersonPicker& picker,
                 QWidget* parent)
        : QDialog(parent), m_editing(connection, environment, name), m_environment(environment), m_picker(picker)
    {
        setObjectName(QStringLiteral("frmEditQuery"));
        setWindowTitle(QStringLiteral("Edit Query - ") + name);
        ResizeForLetters(*this, 640, 380);
        layOut();
        showQuery();
        RememberPlace(*this, environment.settings);
    }

    bool toRun() const { return m_toRun; }

    void reject() override
    {
        if (m_editing.close()) {
            QDialog::reject();
        }
    }

private:
    void layOut()
    {
        QLabel* explanation = MakeLabel("lblExplanation", querymessages::QueryEditorExplanation());
        explanation->setWordWrap(true);
        auto* grid = new QGridLayout;
        int column = 0;
        for (const char* heading : {"Item", "Display", "Filter", "Selection Criteria"}) {
            auto* label = new QLabel(QStringLiteral("<b>%1</b>").arg(QLatin1StringView(heading)));
            grid->addWidget(label, 0, column++);
        }
        for (const ListColumn& item : ListColumns()) {
            const int row = addGroup(*grid, item.caption);
            grid->addWidget(yesNo(item.key + QStringLiteral("Show"), {}), row, 1, Qt::AlignHCenter);
            grid->addWidget(yesNo(item.key + QStringLiteral("Filter"), {}), row, 2, Qt::AlignHCenter);
            grid->addLayout(criteria(item), row, 3);
        }
        const int row = addGroup(*grid, QStringLiteral("Person in the Picture"));
        grid->addWidget(yesNo(personGroup + QStringLiteral("Filter"), {}), row, 2, Qt::AlignHCenter);
        grid->addLayout(personCriteria(), row, 3);
        grid->addLayout(Row({yesNo(QStringLiteral("WithAncs"), QStringLiteral("Ancestors")),
                             yesNo(QStringLiteral("WithDescs"), QStringLiteral("Descendants"))}),
                        row + 1, 3);
        grid->setColumnStretch(3, 1);

        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        for (QPushButton* button : {cmdSave, cmdRun, cmdClose}) {
            buttons->addWidget(button);
        }
        connect(cmdSave, &QPushButton::clicked, this, [this] {
            m_editing.save();
            showQuery();
        });
        connect(cmdRun, &QPushButton::clicked, this, [this] {
            if (m_editing.run()) {
                m_toRun = true;
                accept();
            }
        });
        connect(cmdClose, &QPushButton::clicked, this, &frmEditQuery::reject);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(explanation);
        layout->addLayout(grid);
        layout->addStretch();
        layout->addLayout(buttons);
    }

    static int addGroup(QGridLayout& grid, const QString& caption)
    {
        const int row = grid.rowCount();
        grid.addWidget(new QLabel(caption), row, 0);
        return row;
    }

    QHBoxLayout* criteria(const ListColumn& item)
    {
        const QString from = item.key + QStringLiteral("From");
        const QString to = item.key + QStringLiteral("To");
        switch (item.value) {
        case ListValue::Number:
        case ListValue::Time:
            return Row({new QLabel(QStringLiteral("from")), line(from), new QLabel(QStringLiteral("to")), line(to)});
        case ListValue::PictureDate:
            return Row({new QLabel(QStringLiteral("from")), date(from), new QLabel(QStringLiteral("to")), date(to)});
        case ListValue::YesNo:
            return Row({yesNo(item.key, QStringLiteral("Yes"))});
        case ListValue::Text:
            break;
        }
        if (item.key == QStringLiteral("Place")) {
            return Row({new QLabel(QStringLiteral("is")), place(item.key)});
        }
        return Row({new QLabel(QStringLiteral("contains")), line(item.key + QStringLiteral("Contains"))});
    }

    QHBoxLayout* personCriteria()
    {
        // A long name is cut short rather than pushing the buttons out of sight; its tip has all of it.
        lblPerson->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        lblPerson->setMinimumWidth(lblPerson->fontMetrics().averageCharWidth() * usualLetters);
        lblPerson->setFrameShape(QFrame::StyledPanel);
        QPushButton* index = MakeButton("cmdIndex", QStringLiteral("&Index..."));
        connect(index, &QPushButton::clicked, this, &frmEditQuery::choosePerson);
        QHBoxLayout* row = Row({lblPerson, index});
        row->setStretchFactor(lblPerson, 1);
        return row;
    }

    QCheckBox* yesNo(const QString& column, const QString& caption)
    {
        auto* box = new QCheckBox(caption);
        box->setObjectName(ControlName("chk", column));
        box->setAccessibleName(column);
        connect(box, &QCheckBox::clicked, this,
                [this, column](bool checked) { set(column, checked ? QStringLiteral("1") : QStringLiteral("0")); });
        m_shows.push_back([this, box, column] { box->setChecked(m_editing.query().yes(column)); });
        return box;
    }

    QLineEdit* line(const QString& column)
    {
        QLineEdit* line = Field(column);
        connect(line, &QLineEdit::editingFinished, this, [this, line, column] {
            // A field that is only left has not been changed.
            if (line->isModified()) {
                line->setModified(false);
                set(column, line->text());
            }
        });
        m_shows.push_back([this, line, column] { line->setText(m_editing.valueText(column)); });
        return line;
    }

    QPushButton* date(const QString& column)
    {
        QPushButton* button = MakeButton("", {});
        button->setObjectName(ControlName("cmd", column));
        button->setAccessibleName(column);
        connect(button, &QPushButton::clicked, this, [this, column] {
            if (const auto picked = ChooseDate(m_editing.valueText(column), m_environment, this)) {
                set(column, picked->encoded == noEncodedDate ? QString() : picked->encoded);
            }
        });
        m_shows.push_back([this, button, column] {
            const QString text = m_editing.dateText(column).trimmed();
            button->setText(text.isEmpty() ? QStringLiteral("(any date)") : text);
        });
        return button;
    }

    QComboBox* place(const QString& column)
    {
        auto* box = new QComboBox;
        box->setObjectName(ControlName("cbo", column));
        box->setAccessibleName(column);
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        box->setMinimumContentsLength(usualLetters);
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->addItems(m_editing.places());
        const auto take = [this, box, column] {
            if (box->currentText() != m_editing.valueText(column)) {
                set(column, box->currentText());
            }
        };
        connect(box, &QComboBox::textActivated, this, take);
        connect(box->lineEdit(), &QLineEdit::editingFinished, this, take);
        m_shows.push_back([this, box, column] { box->setEditText(m_editing.valueText(column)); });
        return box;
    }

    /// Writes a change; what was refused is shown as it was.
    void set(const QString& column, const QString& value)
    {
        m_editing.set(column, value);
        showQuery();
    }

    void choosePerson()
    {
        if (!m_editing.hasNameIndex()) {
            return;
        }
        if (const auto person = m_picker()) {
            set(QStringLiteral("IndiId"), QString::number(person->id));
        }
    }

    void showQuery()
    {
        for (const auto& show : m_shows) {
            show();
        }
        lblPerson->setText(m_editing.personName());
        lblPerson->setToolTip(m_editing.personName().toHtmlEscaped());
        cmdSave->setEnabled(m_editing.edited());
    }

    QueryEditing m_editing;
    Environment& m_environment;
    const PersonPicker& m_picker;
    bool m_toRun = false;
    /// Each control's way to show its column.
    std::vector<std::function<void()>> m_shows;
    QLabel* lblPerson = MakeLabel("lblPerson");
    QPushButton* cmdSave = MakeButton("cmdSave", QStringLiteral("&Save"));
    QPushButton* cmdRun = MakeButton("cmdRun", QStringLiteral("&Run"));
    QPushButton* cmdClose = MakeButton("cmdClose", QStringLiteral("&Close"));
};

} // namespace

QueryEditingEnd EditQuery(Connection& connection, Environment& environment, const QString& name,
                          const PersonPicker& picker, QWidget* parent)
{
    try {
        frmEditQuery window(connection, environment, name, picker, parent);
        window.exec();
        return window.toRun() ? QueryEditingEnd::Run : QueryEditingEnd::Closed;
    } catch (const std::exception& exception) {
        environment.talk.tell(querymessages::QueryFailed(ReasonText(exception)));
        return QueryEditingEnd::Closed;
    }
}

} // namespace stemwright
