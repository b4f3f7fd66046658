// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtWidgets/QWidget>

class QLabel;

namespace stemwright
{

/// A warning beside the control that it is about: a sign and a text. Without a text it takes no room. Nothing here
/// fails.
class Notice : public QWidget
{
public:
    /// `name` is the object name of the label with the text.
    explicit Notice(const QString& name);

    void setText(const QString& text);
    QString text() const;

private:
    QLabel* m_text;
};

} // namespace stemwright
