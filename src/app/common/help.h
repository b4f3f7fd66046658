// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/environment.h"

#include <QtCore/QObject>

/// The manual: opening it, and the key that opens it in every window. Nothing here fails.
namespace stemwright
{

/// Opens a page of the manual, "index" for its first one, in the system's browser. Where that fails the user is told
/// where the manual lies.
void ShowHelp(Environment& environment, const QString& page);

/// The page about the window that is in front; about a message or a progress window, that of the window it belongs to.
QString FrontHelpPage(const Environment& environment);

/// Makes F1 open the page about the window in which it is pressed. `environment` must outlive it.
class HelpKey : public QObject
{
public:
    explicit HelpKey(Environment& environment);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Environment& m_environment;
};

} // namespace stemwright
