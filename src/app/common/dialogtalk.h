// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/settings.h"
#include "base/talk.h"

class QWidget;

/// Talks through message boxes, input boxes, file dialogs and progress windows. It is the only place that lets the
/// event loop run while a procedure works: everything it shows is modal, so that the user cannot start a second action
/// meanwhile. Nothing here fails. Stands on Qt Widgets.
namespace stemwright
{

class DialogTalk : public Talk
{
public:
    /// File dialogs begin in the folder of the last family file unless the request names one.
    explicit DialogTalk(const Settings& settings);

    Button ask(const Message& message) override;
    void tell(const Message& message) override;
    bool tellWithCheckBox(const Message& message, const QString& checkBox) override;
    std::optional<QString> input(const InputRequest& request) override;
    std::optional<QString> chooseFile(const FileRequest& request) override;
    std::unique_ptr<Progress> progress(const QString& title, const QString& caption) override;

private:
    QString firstFolder(const FileRequest& request) const;

    const Settings& m_settings;
};

/// The window that is in front, which dialogs belong to; null before there is one.
QWidget* FrontWindow();

} // namespace stemwright
