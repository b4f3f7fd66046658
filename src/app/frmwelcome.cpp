// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/frmwelcome.h"

#include "app/common/controls.h"
#include "app/common/messages.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace stemwright
{

namespace
{

struct Choice {
    const char* name;
    const char* caption;
    WelcomeChoice choice;
};

constexpr Choice choices[] = {{"cmdCreate", "C&reate", WelcomeChoice::Create},
                              {"cmdOpen", "&Open", WelcomeChoice::Open},
                              {"cmdCats", "&Cats", WelcomeChoice::Cats}};

constexpr int textWidth = 380;

} // namespace

WelcomeChoice AskAtWelcome(QWidget& parent)
{
    QDialog window(&parent);
    window.setObjectName(QStringLiteral("frmWelcome"));
    window.setWindowTitle(QStringLiteral("Welcome"));
    QLabel* text = MakeLabel("lblWelcome", appmessages::Welcome());
    text->setWordWrap(true);
    text->setMinimumWidth(ForLetters(window, textWidth));
    WelcomeChoice chosen = WelcomeChoice::None;
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const Choice& choice : choices) {
        QPushButton* button = MakeButton(choice.name, QString::fromLatin1(choice.caption));
        QObject::connect(button, &QPushButton::clicked, &window, [&window, &chosen, &choice] {
            chosen = choice.choice;
            window.accept();
        });
        buttons->addWidget(button);
    }
    buttons->addStretch();
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(16);
    layout->addWidget(text);
    layout->addLayout(buttons);
    window.exec();
    return chosen;
}

} // namespace stemwright
