// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/progresswindow.h"

#include "app/common/controls.h"

#include <QtCore/QDeadlineTimer>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

constexpr qint64 millisecondsBetweenRepaints = 40;
constexpr qint64 millisecondsToAppear = 500;
constexpr int windowWidth = 440;

} // namespace

/// Closing it, by key or by frame, is the wish to stop; it goes away when the work ends.
class ProgressWindow::Window : public QDialog
{
public:
    Window(const QString& title, const QString& captionText, QWidget* parent)
        : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
          caption(new QLabel(captionText, this)), bar(new QProgressBar(this)),
          stop(new QPushButton(QStringLiteral("Stop"), this))
    {
        setObjectName(QStringLiteral("frmProgress"));
        setWindowTitle(title);
        setWindowModality(Qt::ApplicationModal);
        caption->setObjectName(QStringLiteral("lblProgress"));
        caption->setTextFormat(Qt::PlainText);
        caption->setWordWrap(true);
        caption->setMinimumHeight(2 * caption->fontMetrics().lineSpacing());
        caption->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
        bar->setObjectName(QStringLiteral("pgbProgress"));
        stop->setObjectName(QStringLiteral("cmdStop"));
        stop->setVisible(false);
        connect(stop, &QPushButton::clicked, this, &Window::reject);
        auto* buttons = new QHBoxLayout;
        buttons->addStretch();
        buttons->addWidget(stop);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(caption);
        layout->addWidget(bar);
        layout->addLayout(buttons);
        setFixedWidth(ForLetters(*this, windowWidth));
    }

    void reject() override
    {
        if (!stop->isVisible()) {
            return;
        }
        stopWished = true;
        stop->setEnabled(false);
        stop->setText(QStringLiteral("Stopping..."));
    }

    QLabel* caption;
    QProgressBar* bar;
    QPushButton* stop;
    bool stopWished = false;
};

ProgressWindow::ProgressWindow(const QString& title, const QString& caption, QWidget* parent)
    : m_window(std::make_unique<Window>(title, caption, parent))
{
    m_window->show();
    // Until the system has put it in its place, messages would not find it.
    const QDeadlineTimer patience(millisecondsToAppear);
    do {
        QApplication::processEvents();
    } while (!m_window->windowHandle()->isExposed() && !patience.hasExpired());
    m_sinceRepaint.start();
}

ProgressWindow::~ProgressWindow() = default;

void ProgressWindow::setCaption(const QString& caption)
{
    m_window->caption->setText(caption);
    repaintSometimes();
}

void ProgressWindow::setPercent(int percent)
{
    if (m_window->bar->value() != percent) {
        m_window->bar->setValue(percent);
    }
    repaintSometimes();
}

bool ProgressWindow::stopWished()
{
    if (!m_window->stop->isVisible()) {
        m_window->stop->setVisible(true);
    }
    repaintSometimes();
    return m_window->stopWished;
}

void ProgressWindow::repaintSometimes()
{
    if (m_sinceRepaint.elapsed() >= millisecondsBetweenRepaints) {
        QApplication::processEvents();
        m_sinceRepaint.restart();
    }
}

} // namespace stemwright
