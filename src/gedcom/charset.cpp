// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/charset.h"

#include "base/text.h"
#include "gedcom/ansel.h"

#include <QtCore/QUtf8StringView>

#include <algorithm>

namespace stemwright
{

QString CharsetName(Charset charset)
{
    switch (charset) {
    case Charset::Utf8:
        return QStringLiteral("UTF-8");
    case Charset::Utf16LittleEndian:
        return QStringLiteral("UTF-16LE");
    case Charset::Utf16BigEndian:
        return QStringLiteral("UTF-16BE");
    case Charset::Ansel:
        return QStringLiteral("ANSEL");
    case Charset::Windows1252:
        return QStringLiteral("Windows-1252");
    case Charset::Dos437:
        return QStringLiteral("IBM code page 437");
    case Charset::Dos850:
        return QStringLiteral("IBM code page 850");
    case Charset::MacRoman:
        return QStringLiteral("Macintosh Roman");
    case Charset::Named:
        break;
    }
    return {};
}

std::size_t IncompleteTail(std::string_view bytes)
{
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, bytes.size()); ++back) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - back]);
        if (byte >= 0xC0) {
            const std::size_t needed = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
            return needed > back ? back : 0;
        }
        if (byte < 0x80) {
            return 0;
        }
    }
    return 0;
}

ValueDecoder::ValueDecoder(Charset charset, const QString& name)
    : m_charset(charset), m_named(charset == Charset::Named ? NamedCharset::open(name) : std::nullopt)
{
    const std::u16string_view characters = HighCharacters(charset);
    for (std::size_t index = 0; index < m_highCharacters.size(); ++index) {
        m_highCharacters[index] = QString(QChar(characters[index])).toStdString();
    }
    if (m_named && m_named->isSingleByte()) {
        takeCharactersOf(*m_named);
    }
}

/// What the character set leaves free stays as it is in Windows-1252.
void ValueDecoder::takeCharactersOf(const NamedCharset& charset)
{
    for (std::size_t index = 0; index < m_highCharacters.size(); ++index) {
        const char byte = static_cast<char>(index + 0x80U);
        if (const std::optional<QString> character = charset.decode({&byte, 1})) {
            m_highCharacters[index] = character->toStdString();
        }
    }
}

std::string_view ValueDecoder::decode(std::string_view bytes)
{
    if (IsAscii(bytes)) {
        return bytes;
    }
    switch (m_charset) {
    case Charset::Utf8:
    case Charset::Utf16LittleEndian:
    case Charset::Utf16BigEndian:
        return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8()
                   ? bytes
                   : decodeSingleBytes(bytes);
    case Charset::Ansel:
        m_buffer = DecodeAnsel(bytes).toStdString();
        return m_buffer;
    case Charset::Named:
        if (const auto text = m_named && !m_named->isSingleByte() ? m_named->decode(bytes) : std::nullopt) {
            m_buffer = text->toStdString();
            return m_buffer;
        }
        return decodeSingleBytes(bytes);
    default:
        return decodeSingleBytes(bytes);
    }
}

std::string_view ValueDecoder::decodeSingleBytes(std::string_view bytes)
{
    m_buffer.clear();
    for (const char raw : bytes) {
        const auto byte = static_cast<unsigned char>(raw);
        if (byte < 0x80) {
            m_buffer += raw;
        } else {
            m_buffer += m_highCharacters[byte - 0x80U];
        }
    }
    return m_buffer;
}

} // namespace stemwright
