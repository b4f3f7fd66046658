// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/wizard/wizardform.h"

#include "app/common/controls.h"
#include "app/common/notice.h"
#include "app/wizard/wizardtexts.h"
#include "store/engine/engineerror.h"
#include "web/setup/setupmessages.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>

namespace stemwright
{

namespace
{

constexpr double headingSize = 1.4;

QString ControlName(const char* kind, const char* column)
{
    return QLatin1StringView(kind) + QLatin1StringView(column);
}

/// Takes the room that the page has left. It asks for so little that the page need not scroll.
class Memo : public QPlainTextEdit
{
public:
    Memo() { setMinimumHeight(sizeHint().height()); }

    QSize sizeHint() const override
    {
        constexpr int fewestLines = 4;
        return {QPlainTextEdit::sizeHint().width(), fewestLines * fontMetrics().lineSpacing()};
    }
};

QLabel* Heading(const QString& text)
{
    QLabel* heading = MakeLabel("lblPage", text);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * headingSize);
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

} // namespace

WizardForm::WizardForm(const WizardContext& context, WizardPage page)
    : m_context(context), m_page(page), m_body(new QVBoxLayout(this))
{
    m_body->addWidget(Heading(wizardtexts::PageName(page)));
}

void WizardForm::refresh()
{
    const QScopedValueRollback showing(m_showing, true);
    for (const auto& show : m_shows) {
        show();
    }
}

QWidget* WizardForm::firstControl() const
{
    for (QWidget* control : findChildren<QWidget*>()) {
        if ((control->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && control->isEnabled()) {
            return control;
        }
    }
    return nullptr;
}

std::vector<WizardForm::Line>::const_iterator WizardForm::firstRefused() const
{
    return std::find_if(m_lines.begin(), m_lines.end(),
                        [](const Line& line) { return !line.refusal->text().isEmpty(); });
}

bool WizardForm::holdsRefused() const
{
    return firstRefused() != m_lines.end();
}

bool WizardForm::settle()
{
    const auto refused = firstRefused();
    if (refused == m_lines.end()) {
        return true;
    }
    m_context.environment.talk.tell(setupmessages::SetupFailed(refused->refusal->text()));
    refused->box->setFocus();
    return false;
}

QLabel* WizardForm::addText(const char* name, const QString& text)
{
    QLabel* label = MakeLabel(name, text);
    label->setWordWrap(true);
    m_body->addWidget(label);
    return label;
}

QLabel* WizardForm::addCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    caption->setWordWrap(true);
    m_body->addWidget(caption);
    return caption;
}

QLineEdit* WizardForm::addLine(QLabel* caption, const char* column, std::initializer_list<QWidget*> beside)
{
    QLineEdit* box = MakeLine("");
    box->setObjectName(ControlName("txt", column));
    const Line line{box, new Notice(ControlName("lblRefused", column))};
    m_lines.push_back(line);
    auto* row = new QHBoxLayout;
    row->addWidget(box, 1);
    for (QWidget* control : beside) {
        row->addWidget(control);
    }
    caption->setBuddy(box);
    m_body->addLayout(row);
    m_body->addWidget(line.refusal);
    connect(box, &QLineEdit::textEdited, this, [this, line, column] { write(line, column); });
    onRefresh([this, line, column] {
        // What was typed and refused stays to be mended.
        if (line.refusal->text().isEmpty() && line.box->text() != stored(column)) {
            line.box->setText(stored(column));
            line.box->setCursorPosition(0);
        }
    });
    return box;
}

void WizardForm::write(const Line& line, const char* column)
{
    QString refusal;
    try {
        m_context.editing.set(QLatin1StringView(column), line.box->text());
    } catch (const std::exception& exception) {
        refusal = ReasonText(exception);
    }
    line.refusal->setText(refusal);
    m_context.changed();
}

void WizardForm::addMemo(QLabel* caption, const char* column)
{
    auto* box = new Memo;
    box->setObjectName(ControlName("txt", column));
    box->setTabChangesFocus(true);
    caption->setBuddy(box);
    m_body->addWidget(box, 1);
    connect(box, &QPlainTextEdit::textChanged, this, [this, box, column] {
        if (!m_showing) {
            change([this, box, column] { m_context.editing.set(QLatin1StringView(column), box->toPlainText()); });
        }
    });
    onRefresh([this, box, column] {
        if (box->toPlainText() != stored(column)) {
            box->setPlainText(stored(column));
        }
    });
}

QSpinBox* WizardForm::number(const char* column)
{
    const SetupColumn& definition = SetupColumnNamed(QLatin1StringView(column));
    auto* box = new QSpinBox;
    box->setObjectName(ControlName("spn", column));
    box->setRange(definition.lowest, definition.highest);
    LetWheelPass(*box);
    connect(box, &QSpinBox::valueChanged, this, [this, column](int value) {
        // Return in the box tells of the same number again.
        if (!m_showing && QString::number(value) != stored(column)) {
            change([this, column, value] { m_context.editing.set(QLatin1StringView(column), QString::number(value)); });
        }
    });
    onRefresh([this, box, column] { box->setValue(stored(column).toInt()); });
    return box;
}

QCheckBox* WizardForm::yesNo(const char* column, const QString& caption)
{
    auto* box = new QCheckBox(caption);
    box->setObjectName(ControlName("chk", column));
    connect(box, &QCheckBox::clicked, this, [this, column](bool checked) {
        change([this, column, checked] {
            m_context.editing.set(QLatin1StringView(column), QString::number(checked ? 1 : 0));
        });
    });
    onRefresh([this, box, column] { box->setChecked(stored(column) == QStringLiteral("1")); });
    return box;
}

void WizardForm::change(const std::function<void()>& action)
{
    try {
        action();
    } catch (const std::exception& exception) {
        m_context.environment.talk.tell(setupmessages::SetupFailed(ReasonText(exception)));
    }
    refresh();
    m_context.changed();
}

QString WizardForm::stored(const char* column) const
{
    return m_context.editing.settingText(SetupColumnNamed(QLatin1StringView(column)));
}

} // namespace stemwright
