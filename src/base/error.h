// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <exception>

namespace stemwright
{

/// The one exception that the domain throws: something that the user has to be told. Code below the named procedures
/// throws it (or lets the engine's own exception pass); a named procedure catches, tells the user once, leaves the data
/// as it was and returns false. The text is a whole sentence that says what happened and, where it helps, what to do.
class Error : public std::exception
{
public:
    explicit Error(QString text);

    const QString& text() const noexcept { return m_text; }

    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_text;
    QByteArray m_utf8;
};

/// The text to show for any exception: an Error's own text, otherwise what() read as UTF-8.
QString ErrorText(const std::exception& exception);

} // namespace stemwright
