// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/common/dialogtalk.h"
#include "app/frmalbum.h"
#include "app/hand.h"
#include "support/testworld.h"

namespace stemwright::test
{

/// The application at work on a temporary folder, with settings in memory, and the user's hand before it.
class AppTest : public testing::Test
{
protected:
    /// Makes a family file with the parents 1 and 2, their child 3 and its child 4, and so many pictures of 40 x 30
    /// pixels titled "Picture 1" and so on, each taken a year before the one before it. Returns its path.
    QString familyFile(int pictures = 0);

    /// Opens the main window as the program does: on a file, or on the last one. An open one is closed before.
    QWidget& start(const QString& file = {});

    void quit() { m_window.reset(); }

    /// Writes a picture and returns its path.
    QString picture(const QString& name, QSize size = {40, 30});

    /// Closes the main window and reads from the family file.
    QStringList stored(const QString& sql);

    /// Presses a key wherever the main window has its focus.
    void key(QKeyCombination key);

    /// What the status bar says of the place in the list.
    QString position();

    /// Moves the mouse over the picture with the button down; places are in pixels of the picture.
    static void Drag(QWidget& view, QSize picture, QPointF from, QPointF to);

    QWidget& window() { return *m_window; }

    TestWorld world;
    DialogTalk talk{world.settings};
    Environment environment{talk, world.settings, world.clock, world.application};
    Hand hand;

private:
    std::unique_ptr<frmAlbum> m_window;
};

/// Where a place of the picture is in the view that shows it, and how many pixels of the view one of the picture takes.
QPointF InView(const QWidget& view, QSize picture, QPointF place);
double ScaleIn(const QWidget& view, QSize picture);

} // namespace stemwright::test
