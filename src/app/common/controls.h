// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtWidgets/QDialog>

class QAbstractItemModel;
class QAbstractItemView;
class QDialogButtonBox;
class QHBoxLayout;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableView;

/// What the windows make again and again: controls with their object name, caption and tooltip, and windows that come
/// back where they were. Nothing here fails.
namespace stemwright
{

class Settings;

/// A push button. `caption` may hold an access key; the object name is `name`.
QPushButton* MakeButton(const char* name, const QString& caption, const QString& toolTip = {});
QRadioButton* MakeOption(const char* name, const QString& caption);
/// A label that shows its text as it stands, whatever names it holds.
QLabel* MakeLabel(const char* name, const QString& text = {});
/// A line of text. It takes whatever is pasted: what is too long for the family file is refused by name when it is
/// applied, not cut silently.
QLineEdit* MakeLine(const char* name, const QString& toolTip = {});

/// A grid that shows the rows of `model` as whole lines, one of which is selected, and lets them be copied. `purpose`
/// is what a screen reader says.
QTableView* MakeGrid(const char* name, const QString& purpose, QAbstractItemModel& model);
/// Controls side by side.
QHBoxLayout* MakeRow(std::initializer_list<QWidget*> controls);

/// Whether a key is Return in one of the window's lists, where it acts on the row and not on the window.
bool IsReturnInList(const QKeyEvent& event, const QWidget& window);

/// OK (`cmdOK`), which accepts the window.
QDialogButtonBox* MakeOk(QDialog& window);
/// The same with Cancel (`cmdCancel`), which rejects it.
QDialogButtonBox* MakeOkCancel(QDialog& window);

/// A length in pixels, given for letters of the usual size, for those of the window.
int ForLetters(const QWidget& window, int pixels);

/// Gives a window the size that it has at first, in pixels: it grows with the user's letters, as far as the screen
/// goes.
void ResizeForLetters(QWidget& window, int width, int height);

/// Leaves a control alone, one that is in a page that scrolls, while the wheel only passes over it.
void LetWheelPass(QWidget& control);

/// Makes Ctrl+C copy the selected rows of a list or grid as lines of text with tabs between the columns.
void LetCopy(QAbstractItemView& view);

/// Puts a window into the middle of the screen, its title bar included. Over its parent, where dialogs come up, one
/// that is as large as the screen would lose it.
void PlaceOnScreen(QWidget& window);

/// Puts a window where it stood when it was closed last, as far as the screen goes, or leaves it at its own size, and
/// remembers its place from now on. The window is known by its object name. `settings` must outlive the window.
void RememberPlace(QWidget& window, Settings& settings);

} // namespace stemwright
