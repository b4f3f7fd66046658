// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "export/encodedtext.h"

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

EncodedText::EncodedText(TextEncoding encoding) : m_encoder(EncoderOf(encoding)) {}

bool EncodedText::writeLine(const QString& line)
{
    m_encoder.resetState();
    const QByteArray encoded = m_encoder.encode(line + QStringLiteral("\r\n"));
    if (m_encoder.hasError()) {
        return false;
    }
    m_bytes += encoded;
    return true;
}

} // namespace stemwright
