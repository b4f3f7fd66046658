// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <optional>
#include <vector>

/// The port through which every procedure talks to the user, whoever runs it: windows, the command line or a test. A
/// message is a value, made by the functions of each folder's `messages` file. No other code words what is shown here;
/// the reasons that messages quote may stand where an Error is thrown. Nothing here fails; an adapter that cannot ask
/// answers with the message's preset.
namespace stemwright
{

enum class Icon { None, Information, Question, Warning, Critical };
enum class Button { Ok, Cancel, Yes, No, Retry };

/// One message box. An empty title stands for the application's name. The preset is the button that is chosen when the
/// user only presses Return, and the safe answer when nobody can be asked.
struct Message {
    QString title;
    QString text;
    Icon icon = Icon::None;
    std::vector<Button> buttons = {Button::Ok};
    Button preset = Button::Ok;
};

/// An input box: one line of text, preset with `text`.
struct InputRequest {
    QString title;
    QString prompt;
    QString text;
};

enum class FilePurpose { Open, Save, Folder };

/// A common file dialog. `filters` are pairs of caption and pattern in the form "Caption (*.ext)".
struct FileRequest {
    QString title;
    FilePurpose purpose = FilePurpose::Open;
    QStringList filters;
    QString folder;
    QString suggestedName;
};

/// A progress display that lives as long as the work: made by Talk::progress(), gone when destroyed. Reporting is cheap
/// enough to be done for every record; the adapter decides how often it repaints.
class Progress
{
public:
    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    virtual ~Progress() = default;

    /// Replaces the caption of the step that is being done.
    virtual void setCaption(const QString& caption) = 0;
    /// Sets the bar, 0 to 100 percent.
    virtual void setPercent(int percent) = 0;
    /// True once the user wished to stop. The work looks at it where stopping is safe.
    virtual bool stopWished() = 0;
};

class Talk
{
public:
    Talk() = default;
    Talk(const Talk&) = delete;
    Talk& operator=(const Talk&) = delete;
    virtual ~Talk() = default;

    /// Shows the message and waits for one of its buttons.
    virtual Button ask(const Message& message) = 0;
    /// Shows a message that has only an OK button.
    virtual void tell(const Message& message) = 0;
    /// Shows a message that has only an OK button, and a check box with this caption. True when the user ticked it.
    virtual bool tellWithCheckBox(const Message& message, const QString& checkBox) = 0;
    /// Asks for a line of text; no value when cancelled.
    virtual std::optional<QString> input(const InputRequest& request) = 0;
    /// Asks for a file or folder; its full path, or no value when cancelled.
    virtual std::optional<QString> chooseFile(const FileRequest& request) = 0;
    /// Opens a progress display.
    virtual std::unique_ptr<Progress> progress(const QString& title, const QString& caption) = 0;
};

} // namespace stemwright
