// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// A text file in the making: lines ended by carriage return and line feed, in one of the encodings that other programs
/// read. Nothing here fails. Stands on Qt's converters.
namespace stemwright
{

enum class TextEncoding {
    /// The encoding of the operating system's own texts.
    System,
    Utf8,
    Windows1252
};

class EncodedText
{
public:
    explicit EncodedText(TextEncoding encoding) : m_encoding(encoding) {}

    /// Appends a line. False, with nothing appended, when it has a character that the encoding does not know.
    bool writeLine(const QString& line);

    const QByteArray& bytes() const { return m_bytes; }

private:
    TextEncoding m_encoding;
    QByteArray m_bytes;
};

} // namespace stemwright
