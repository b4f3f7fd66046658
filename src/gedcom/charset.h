// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/namedcharset.h"

#include <QtCore/QString>

#include <array>
#include <string>
#include <string_view>

/// The character sets that GEDCOM files are written in, and the way from their bytes to UTF-8. Nothing here fails:
/// bytes that a character set does not know are read as Windows-1252, so that no text is lost. Stands on Qt Core and
/// ICU.
namespace stemwright
{

enum class Charset { Utf8, Utf16LittleEndian, Utf16BigEndian, Ansel, Windows1252, Dos437, Dos850, MacRoman, Named };

/// The name of a character set as users know it; empty for Charset::Named, which stands for one of namedcharset.h.
QString CharsetName(Charset charset);

/// The characters of bytes 0x80 to 0xFF of a single-byte character set (not ANSEL): 128 of them. For a named one, those
/// of Windows-1252.
std::u16string_view HighCharacters(Charset charset);

/// Turns values into UTF-8, one whole value at a time: some exporters split a character between two lines, so lines
/// have to be joined before. The two UTF-16 sets arrive here as UTF-8 already (linesource.h).
class ValueDecoder
{
public:
    /// `name` is that of a named character set. An unknown one is Windows-1252.
    explicit ValueDecoder(Charset charset, const QString& name = {});

    /// The value as valid UTF-8: `bytes` itself where it is that already, otherwise a buffer that the next call
    /// overwrites. A value that should be UTF-8, or in a set of several bytes a character, and is not is read as
    /// Windows-1252.
    std::string_view decode(std::string_view bytes);

private:
    std::string_view decodeSingleBytes(std::string_view bytes);

    void takeCharactersOf(const NamedCharset& charset);

    Charset m_charset;
    std::optional<NamedCharset> m_named;
    /// The UTF-8 form of bytes 0x80 to 0xFF.
    std::array<std::string, 128> m_highCharacters;
    std::string m_buffer;
};

/// The length of a UTF-8 sequence that begins at the end of `bytes` and is not whole yet.
std::size_t IncompleteTail(std::string_view bytes);

} // namespace stemwright
