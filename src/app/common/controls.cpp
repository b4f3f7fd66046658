// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/controls.h"

#include "base/settings.h"

#include <QtCore/QEvent>
#include <QtGui/QClipboard>
#include <QtGui/QKeyEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QTableView>

namespace stemwright
{

namespace
{

constexpr int longestPaste = 10'000'000;
/// The height of a line of letters for which sizes in pixels are meant.
constexpr int usualLineHeight = 14;

/// Notes a window's place whenever it is hidden, which closing it does, too.
class PlaceKeeper : public QObject
{
public:
    PlaceKeeper(QWidget& window, Settings& settings) : QObject(&window), m_window(window), m_settings(settings)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &m_window && event->type() == QEvent::Hide) {
            m_settings.setValue(setting::windows, m_window.objectName(),
                                QString::fromLatin1(m_window.saveGeometry().toBase64()));
        }
        return false;
    }

private:
    QWidget& m_window;
    Settings& m_settings;
};

/// Return on a button presses it, as the frame around it says; Qt would press the window's default button.
class Button : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QPushButton::keyPressEvent(event);
        }
    }
};

class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) {
            return false;
        }
        event->ignore();
        return true;
    }
};

int TitleHeight(const QWidget& window)
{
    return window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
}

/// The size that a window may have at most, without what the system draws around it.
QSize RoomFor(const QWidget& window)
{
    return window.screen()->availableSize() - QSize(0, TitleHeight(window));
}

void CopySelectedRows(const QAbstractItemView& view)
{
    const QAbstractItemModel& model = *view.model();
    QModelIndexList rows = view.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells << model.index(row.row(), column).data().toString();
        }
        text += cells.join(u'\t') + u'\n';
    }
    QApplication::clipboard()->setText(text);
}

} // namespace

QPushButton* MakeButton(const char* name, const QString& caption, const QString& toolTip)
{
    auto* button = new Button(caption);
    button->setObjectName(QLatin1StringView(name));
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

QRadioButton* MakeOption(const char* name, const QString& caption)
{
    auto* option = new QRadioButton(caption);
    option->setObjectName(QLatin1StringView(name));
    return option;
}

QLabel* MakeLabel(const char* name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLineEdit* MakeLine(const char* name, const QString& toolTip)
{
    auto* line = new QLineEdit;
    line->setObjectName(QLatin1StringView(name));
    line->setToolTip(toolTip);
    line->setMaxLength(longestPaste);
    return line;
}

QTableView* MakeGrid(const char* name, const QString& purpose, QAbstractItemModel& model)
{
    auto* grid = new QTableView;
    grid->setObjectName(QLatin1StringView(name));
    grid->setAccessibleName(purpose);
    grid->setModel(&model);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setAlternatingRowColors(true);
    grid->setShowGrid(false);
    grid->setWordWrap(false);
    grid->setTabKeyNavigation(false);
    grid->verticalHeader()->hide();
    grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 6);
    grid->horizontalHeader()->setHighlightSections(false);
    grid->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    LetCopy(*grid);
    return grid;
}

QHBoxLayout* MakeRow(std::initializer_list<QWidget*> controls)
{
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls) {
        row->addWidget(control);
    }
    return row;
}

bool IsReturnInList(const QKeyEvent& event, const QWidget& window)
{
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return isReturn && qobject_cast<QAbstractItemView*>(window.focusWidget()) != nullptr;
}

QDialogButtonBox* MakeOk(QDialog& window)
{
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    QObject::connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);
    return buttons;
}

QDialogButtonBox* MakeOkCancel(QDialog& window)
{
    QDialogButtonBox* buttons = MakeOk(window);
    buttons->addButton(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    return buttons;
}

int ForLetters(const QWidget& window, int pixels)
{
    return pixels * std::max(window.fontMetrics().height(), usualLineHeight) / usualLineHeight;
}

void ResizeForLetters(QWidget& window, int width, int height)
{
    window.resize(QSize(ForLetters(window, width), ForLetters(window, height)).boundedTo(RoomFor(window)));
}

void LetWheelPass(QWidget& control)
{
    control.setFocusPolicy(Qt::StrongFocus);
    control.installEventFilter(new WheelGuard(&control));
}

void LetCopy(QAbstractItemView& view)
{
    auto* copy = new QShortcut(QKeySequence::Copy, &view, nullptr, nullptr, Qt::WidgetShortcut);
    QObject::connect(copy, &QShortcut::activated, &view, [&view] { CopySelectedRows(view); });
}

void PlaceOnScreen(QWidget& window)
{
    // What moves is the window with its title bar.
    QRect place(QPoint(), window.size() + QSize(0, TitleHeight(window)));
    place.moveCenter(window.screen()->availableGeometry().center());
    window.move(place.topLeft());
}

void RememberPlace(QWidget& window, Settings& settings)
{
    window.restoreGeometry(QByteArray::fromBase64(settings.value(setting::windows, window.objectName()).toLatin1()));
    // It may have been another screen.
    const QSize room = RoomFor(window);
    if (!window.isMaximized() && window.size().boundedTo(room) != window.size()) {
        window.resize(window.size().boundedTo(room));
    }
    new PlaceKeeper(window, settings);
}

} // namespace stemwright
