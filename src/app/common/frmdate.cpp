// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/frmdate.h"

#include "app/common/controls.h"

#include <QtCore/QRegularExpression>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <limits>

namespace stemwright
{

namespace
{

/// A year, or nothing. It takes years beyond what can be entered, so that the picker can say what is wrong with them.
class YearBox : public QSpinBox
{
public:
    YearBox()
    {
        setObjectName(QStringLiteral("spnYear"));
        setRange(none, std::numeric_limits<std::int16_t>::max());
        setSpecialValueText(QStringLiteral(" "));
        setAccelerated(true);
    }

    QString typed()
    {
        interpretText();
        return value() == none ? QString() : QString::number(value());
    }

    void setTyped(const QString& year) { setValue(year.isEmpty() ? none : year.toInt()); }

    void stepBy(int steps) override
    {
        setValue(value() == none ? usualYear : std::clamp(value() + steps, earliestYear, latestYear));
    }

    QValidator::State validate(QString& text, int&) const override
    {
        static const QRegularExpression year(QStringLiteral("^\\s*-?\\d{0,5}\\s*$"));
        return year.match(text).hasMatch() ? QValidator::Acceptable : QValidator::Invalid;
    }

    int valueFromText(const QString& text) const override
    {
        bool isNumber = false;
        const int year = text.trimmed().toInt(&isNumber);
        return isNumber ? year : none;
    }

private:
    static constexpr int none = std::numeric_limits<std::int16_t>::min();
    /// Where stepping begins.
    static constexpr int usualYear = 1900;
};

class frmDate : public QDialog
{
public:
    frmDate(const QString& encoded, Environment& environment, QWidget* parent)
        : QDialog(parent), m_environment(environment)
    {
        setObjectName(QStringLiteral("frmDate"));
        setWindowTitle(QStringLiteral("Picture Date"));
        fillLists();
        layOut();
        m_picker.ShowEncodedDate(encoded, environment.talk);
        showFields();
        RememberPlace(*this, environment.settings);
    }

    const std::optional<PickedDate>& picked() const { return m_picked; }

    void accept() override
    {
        m_picker.qualifier = static_cast<DateQualifier>(cboPrecision->currentIndex());
        m_picker.day = cboDay->currentIndex();
        m_picker.month = cboMonth->currentIndex();
        m_picker.year = spnYear->typed();
        m_picked = m_picker.accept(m_environment.talk);
        if (m_picked) {
            QDialog::accept();
        }
    }

private:
    void fillLists()
    {
        cboPrecision->setObjectName(QStringLiteral("cboPrecision"));
        for (int code = 0; code <= static_cast<int>(DateQualifier::After); ++code) {
            cboPrecision->addItem(QualifierText(static_cast<DateQualifier>(code)));
        }
        cboDay->setObjectName(QStringLiteral("cboDay"));
        cboDay->addItem({});
        for (int day = 1; day <= 31; ++day) {
            cboDay->addItem(QString::number(day));
        }
        cboMonth->setObjectName(QStringLiteral("cboMonth"));
        cboMonth->addItem({});
        for (int month = 1; month <= 12; ++month) {
            cboMonth->addItem(MonthName(month));
        }
    }

    void layOut()
    {
        auto* grid = new QGridLayout;
        int column = 0;
        const std::pair<QString, QWidget*> fields[] = {{QStringLiteral("&Precision"), cboPrecision},
                                                       {QStringLiteral("&Day"), cboDay},
                                                       {QStringLiteral("&Month"), cboMonth},
                                                       {QStringLiteral("&Year"), spnYear}};
        for (const auto& [caption, field] : fields) {
            auto* label = new QLabel(caption);
            label->setBuddy(field);
            grid->addWidget(label, 0, column);
            grid->addWidget(field, 1, column++);
        }
        auto* clear = MakeButton("cmdNoDate", QStringLiteral("&No Date"), QStringLiteral("Empty all fields"));
        connect(clear, &QPushButton::clicked, this, [this] {
            m_picker = DatePicker();
            showFields();
        });
        QDialogButtonBox* buttons = MakeOkCancel(*this);
        buttons->addButton(clear, QDialogButtonBox::ResetRole);
        auto* layout = new QVBoxLayout(this);
        layout->addLayout(grid);
        layout->addStretch();
        layout->addWidget(buttons);
    }

    void showFields()
    {
        cboPrecision->setCurrentIndex(static_cast<int>(m_picker.qualifier));
        cboDay->setCurrentIndex(m_picker.day);
        cboMonth->setCurrentIndex(m_picker.month);
        spnYear->setTyped(m_picker.year);
    }

    Environment& m_environment;
    DatePicker m_picker;
    std::optional<PickedDate> m_picked;
    QComboBox* cboPrecision = new QComboBox;
    QComboBox* cboDay = new QComboBox;
    QComboBox* cboMonth = new QComboBox;
    YearBox* spnYear = new YearBox;
};

} // namespace

std::optional<PickedDate> ChooseDate(const QString& encoded, Environment& environment, QWidget* parent)
{
    frmDate window(encoded, environment, parent);
    window.exec();
    return window.picked();
}

} // namespace stemwright
