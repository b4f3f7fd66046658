// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "export/encodedtext.h"

#include <QtCore/QStringConverter>

namespace stemwright
{

namespace
{

QStringEncoder EncoderOf(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Utf8:
        return QStringEncoder(QStringConverter::Utf8);
    case TextEncoding::Windows1252:
        return QStringEncoder("windows-1252");
    case TextEncoding::System:
        break;
    }
    return QStringEncoder(QStringConverter::System);
}

} // namespace

bool EncodedText::writeLine(const QString& line)
{
    // A converter that met a character which it does not know has to be made anew.
    QStringEncoder encoder = EncoderOf(m_encoding);
    const QByteArray encoded = encoder.encode(line + QStringLiteral("\r\n"));
    if (encoder.hasError()) {
        return false;
    }
    m_bytes += encoded;
    return true;
}

} // namespace stemwright
