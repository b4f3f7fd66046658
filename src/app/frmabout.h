// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/applicationfolder.h"

#include <QtWidgets/QWidget>

/// The windows that say what the program is. Nothing here fails.
namespace stemwright
{

/// Shown while the program starts, until the main window is there and a moment has passed; a key or a click closes it.
class frmSplash : public QWidget
{
public:
    explicit frmSplash(const ApplicationFolder& application);

    /// Closes it a moment after now, and then deletes it.
    void finish();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};

/// Shows the version, what the program is for, its licence and what it stands on.
void ShowAbout(const ApplicationFolder& application, QWidget& parent);

} // namespace stemwright
