// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/hand.h"

#include "support/testworld.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace stemwright::test
{

namespace
{

constexpr int longestWait = 10'000;
const QString progressWindow = "frmProgress";

/// The name by which a window is foretold, and what it says.
QString NameOf(const QWidget& window)
{
    return window.objectName() + u'/' + window.windowTitle();
}

QString TextOf(const QWidget& window)
{
    const auto* box = qobject_cast<const QMessageBox*>(&window);
    return box != nullptr ? box->text() : QString();
}

bool Fits(const QString& wanted, const QWidget& window)
{
    return window.objectName() == wanted || NameOf(window) == wanted ||
           (qobject_cast<const QMessageBox*>(&window) != nullptr &&
            (window.windowTitle() == wanted || TextOf(window).startsWith(wanted)));
}

} // namespace

void Press(QObject& window, const char* name)
{
    auto* action = window.findChild<QAction*>(name);
    auto* button = action == nullptr ? &Find<QAbstractButton>(window, name) : nullptr;
    QObject* control = action == nullptr ? static_cast<QObject*>(button) : action;
    EXPECT_TRUE(action == nullptr ? button->isEnabled() && button->isVisible() : action->isEnabled()) << name;
    // Through the event loop, as from a menu or the mouse.
    QMetaObject::invokeMethod(control, action == nullptr ? "click" : "trigger", Qt::QueuedConnection);
    QCoreApplication::sendPostedEvents(control, QEvent::MetaCall);
}

void Type(QWidget& window, const char* name, const QString& text)
{
    auto& control = Find<QWidget>(window, name);
    // A message that has just gone may still have the focus, and without it nothing is finished by a Tab.
    window.activateWindow();
    control.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&control] { return control.hasFocus(); })) << name;
    QTest::keyClick(&control, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&control, Qt::Key_Delete);
    QTest::keyClicks(&control, text);
    QTest::keyClick(&control, Qt::Key_Tab);
}

void Choose(QWidget& window, const char* name, const QString& entry)
{
    auto& list = Find<QComboBox>(window, name);
    EXPECT_TRUE(list.isEnabled() && list.findText(entry) >= 0) << name << entry.toStdString();
    list.setCurrentText(entry);
    Q_EMIT list.textActivated(entry);
}

QStringList Shown(QWidget& window, const char* name)
{
    const QAbstractItemModel& model = *Find<QAbstractItemView>(window, name).model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells << model.index(row, column).data().toString();
        }
        rows << cells.join(u'|');
    }
    return rows;
}

int CurrentRow(QWidget& window, const char* name)
{
    return Find<QAbstractItemView>(window, name).currentIndex().row();
}

void ClickHeader(QWidget& window, const char* name, int section)
{
    QHeaderView& header = *Find<QTableView>(window, name).horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {header.sectionViewportPosition(section) + 8, 5});
}

QStringList AccessKeys(const QWidget& window)
{
    QStringList keys;
    const auto note = [&keys](const QString& text) {
        const QString key = QKeySequence::mnemonic(text).toString();
        key.isEmpty() ? void() : keys.append(key);
    };
    for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
        for (const QAction* menu : bar->actions()) {
            note(menu->text());
        }
    }
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        note(control->isVisible() ? control->property("text").toString() : QString());
    }
    return keys;
}

bool Await(const std::function<bool()>& condition)
{
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] { condition() ? loop.quit() : void(); });
    look.start(5);
    QTimer::singleShot(2 * longestWait, &loop, [&loop] { loop.exit(1); });
    return condition() || loop.exec() == 0;
}

Hand::Hand()
{
    look();
}

Hand::~Hand()
{
    for (const Expected& expected : m_expected) {
        ADD_FAILURE() << "Never came up: " << expected.window.toStdString();
    }
}

void Hand::at(const QString& name, Action act)
{
    m_expected.push_back({name, std::move(act)});
}

void Hand::press(const QString& name, const char* button)
{
    at(name, [button](QWidget& window) { Press(window, button); });
}

void Hand::answer(const QString& message, QMessageBox::StandardButton button)
{
    at(message, [button](QWidget& window) {
        QAbstractButton* wanted = static_cast<QMessageBox&>(window).button(button);
        ASSERT_NE(wanted, nullptr) << TextOf(window).toStdString();
        wanted->click();
    });
}

void Hand::enter(const QString& title, const std::optional<QString>& text)
{
    at("inputBox/" + title, [text](QWidget& window) {
        auto& input = static_cast<QInputDialog&>(window);
        input.setTextValue(text.value_or(QString()));
        text ? input.accept() : input.reject();
    });
}

void Hand::choose(const QString& title, const QString& path)
{
    at("fileDialog/" + title, [path](QWidget& window) {
        Find<QLineEdit>(window, "fileNameEdit").setText(path);
        QMetaObject::invokeMethod(&window, path.isEmpty() ? "reject" : "accept");
    });
}

int Hand::whateverComes(const std::function<void()>& action)
{
    m_any = 0;
    action();
    return *std::exchange(m_any, std::nullopt);
}

void Hand::wait()
{
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_expected.empty() && m_busy.empty(); }, longestWait));
}

/// Each look is a timer of its own, because one timer does not fire while it is being served.
void Hand::look()
{
    QTimer::singleShot(1, this, &Hand::look);
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr || !front->isVisible() || std::count(m_busy.begin(), m_busy.end(), front) > 0) {
        return;
    }
    if (front->objectName() != progressWindow || (!m_expected.empty() && Fits(m_expected.front().window, *front))) {
        deal(*front);
    }
}

void Hand::deal(QWidget& window)
{
    const QPointer<QWidget> alive(&window);
    const QPointer<QWidget> parent(window.parentWidget());
    const QString name = NameOf(window) + u' ' + TextOf(window);
    m_busy.push_back(&window);
    if (m_any) {
        // It is closed below.
        *m_any += qobject_cast<QMessageBox*>(&window) != nullptr ? 1 : 0;
    } else if (m_expected.empty() || !Fits(m_expected.front().window, window)) {
        ADD_FAILURE() << "Unexpected: " << name.toStdString() << "\nwhile waiting for "
                      << (m_expected.empty() ? "nothing" : m_expected.front().window.toStdString());
    } else {
        const Action act = std::move(m_expected.front().act);
        m_expected.pop_front();
        try {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << name.toStdString();
            act(window);
        } catch (const std::exception& exception) {
            ADD_FAILURE() << name.toStdString() << ": " << exception.what();
        }
        if (alive && window.isVisible() && window.objectName() != progressWindow) {
            ADD_FAILURE() << "Still open: " << name.toStdString();
        }
    }
    m_busy.pop_back();
    if (auto* dialog = qobject_cast<QDialog*>(alive.data());
        dialog != nullptr && dialog->isVisible() && dialog->objectName() != progressWindow) {
        dialog->done(QDialog::Rejected);
    }
    if (parent && (!alive || alive->isHidden())) {
        // Without a window manager nobody else does.
        parent->activateWindow();
    }
}

} // namespace stemwright::test
