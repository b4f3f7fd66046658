// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/frmabout.h"

#include "app/common/controls.h"
#include "app/common/messages.h"

#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

namespace stemwright
{

namespace
{

constexpr int signSize = 96;
constexpr int splashWidth = 380;
constexpr int millisecondsAfterStart = 1'200;

/// The sign, the name and the version below each other.
QVBoxLayout* Masthead(const ApplicationFolder& application)
{
    auto* sign = new QLabel;
    sign->setPixmap(QIcon(application.file(QStringLiteral("icons/stemwright.svg"))).pixmap(signSize));
    sign->setAlignment(Qt::AlignCenter);
    sign->setFixedHeight(signSize);
    auto* name = MakeLabel("lblName", QApplication::applicationDisplayName());
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setBold(true);
    name->setFont(font);
    name->setAlignment(Qt::AlignCenter);
    auto* version = MakeLabel("lblVersion", appmessages::VersionText());
    version->setAlignment(Qt::AlignCenter);
    auto* purpose = MakeLabel("lblPurpose", appmessages::Purpose());
    purpose->setAlignment(Qt::AlignCenter);
    purpose->setWordWrap(true);
    auto* layout = new QVBoxLayout;
    for (QLabel* label : {sign, name, version, purpose}) {
        layout->addWidget(label);
    }
    return layout;
}

} // namespace

frmSplash::frmSplash(const ApplicationFolder& application) : QWidget(nullptr, Qt::SplashScreen)
{
    setObjectName(QStringLiteral("frmSplash"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->addLayout(Masthead(application));
    setFixedWidth(ForLetters(*this, splashWidth));
}

void frmSplash::finish()
{
    QTimer::singleShot(millisecondsAfterStart, this, &QWidget::close);
}

void frmSplash::keyPressEvent(QKeyEvent*)
{
    close();
}

void frmSplash::mousePressEvent(QMouseEvent*)
{
    close();
}

void ShowAbout(const ApplicationFolder& application, QWidget& parent)
{
    QDialog window(&parent);
    window.setObjectName(QStringLiteral("frmAbout"));
    window.setWindowTitle(QStringLiteral("About ") + QApplication::applicationDisplayName());
    QLabel* credits = MakeLabel("lblCredits", appmessages::Credits());
    credits->setWordWrap(true);
    credits->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(24, 24, 24, 16);
    layout->setSpacing(12);
    layout->addLayout(Masthead(application));
    layout->addWidget(credits);
    layout->addWidget(MakeOk(window));
    window.setFixedWidth(ForLetters(window, splashWidth));
    // Lines that are wrapped need a height that only a width can tell.
    window.setFixedHeight(layout->totalHeightForWidth(window.width()));
    window.exec();
}

} // namespace stemwright
