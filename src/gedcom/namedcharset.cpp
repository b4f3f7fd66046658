// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/namedcharset.h"

#include <unicode/ucnv.h>

#include <string>

namespace stemwright
{

namespace
{

/// Null when there is no such character set. Only names that ICU has a list of are opened, since it would look for a
/// file with any other one.
UConverter* OpenConverter(const QString& name)
{
    const QByteArray bytes = name.toLatin1();
    UErrorCode error = U_ZERO_ERROR;
    if (bytes.isEmpty() || ucnv_countAliases(bytes.constData(), &error) == 0 || U_FAILURE(error)) {
        return nullptr;
    }
    UConverter* const converter = ucnv_open(bytes.constData(), &error);
    ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    return converter;
}

} // namespace

void NamedCharset::Closer::operator()(UConverter* converter) const
{
    ucnv_close(converter);
}

std::optional<NamedCharset> NamedCharset::open(const QString& name)
{
    NamedCharset charset(OpenConverter(name));
    if (!charset.m_converter) {
        return std::nullopt;
    }
    const UConverterType type = ucnv_getType(charset.m_converter.get());
    if ((type != UCNV_SBCS && type != UCNV_MBCS) || !charset.keepsAscii()) {
        return std::nullopt;
    }
    return charset;
}

bool NamedCharset::isSingleByte() const
{
    return ucnv_getType(m_converter.get()) == UCNV_SBCS;
}

std::optional<QString> NamedCharset::decode(std::string_view bytes) const
{
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    char16_t* target = reinterpret_cast<char16_t*>(text.data());
    const char* source = bytes.data();
    UErrorCode error = U_ZERO_ERROR;
    ucnv_resetToUnicode(m_converter.get());
    ucnv_toUnicode(m_converter.get(), &target, target + text.size(), &source, source + bytes.size(), nullptr, 1,
                   &error);
    if (U_FAILURE(error)) {
        return std::nullopt;
    }
    text.truncate(reinterpret_cast<QChar*>(target) - text.constData());
    return text;
}

/// Whether tags, numbers and the characters that GEDCOM gives a meaning are where they are in ASCII. Japanese sets
/// have a currency sign in place of the backslash and an overline in place of the tilde.
bool NamedCharset::keepsAscii() const
{
    std::string ascii;
    for (char character = ' '; character < '~'; ++character) {
        if (character != '\\') {
            ascii += character;
        }
    }
    return decode(ascii) == QString::fromStdString(ascii);
}

bool IsWithinWindows1252(const QString& name)
{
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(OpenConverter(name), &ucnv_close);
    const UConverterType type = converter ? ucnv_getType(converter.get()) : UCNV_UNSUPPORTED_CONVERTER;
    return type == UCNV_US_ASCII || type == UCNV_LATIN_1;
}

} // namespace stemwright
