// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/ansel.h"

#include "gedcom/charset.h"

#include <array>

namespace stemwright
{

namespace
{

/// Bytes 0xA0 to 0xCF: letters and signs that stand for themselves; 0 where ANSEL leaves the byte free. 0xBE, 0xBF,
/// 0xCD, 0xCE and 0xCF are GEDCOM's own (boxes, small e and o in the middle of the line, sharp s).
constexpr std::array<char16_t, 48> spacing = {
    0,      0x0141, 0x00D8, 0x0110, 0x00DE, 0x00C6, 0x0152, 0x02B9, 0x00B7, 0x266D, 0x00AE, 0x00B1,
    0x01A0, 0x01AF, 0x02BC, 0,      0x02BB, 0x0142, 0x00F8, 0x0111, 0x00FE, 0x00E6, 0x0153, 0x02BA,
    0x0131, 0x00A3, 0x00F0, 0,      0x01A1, 0x01B0, 0x25A1, 0x25A0, 0x00B0, 0x2113, 0x2117, 0x00A9,
    0x266F, 0x00BF, 0x00A1, 0x00DF, 0x20AC, 0,      0,      0,      0,      0x0065, 0x006F, 0x00DF};

/// Bytes 0xE0 to 0xFF: marks that combine with the following letter. 0xFC is GEDCOM's own (a slash through the letter).
constexpr std::array<char16_t, 32> combining = {0x0309, 0x0300, 0x0301, 0x0302, 0x0303, 0x0304, 0x0306, 0x0307,
                                                0x0308, 0x030C, 0x030A, 0xFE20, 0xFE21, 0x0315, 0x030B, 0x0310,
                                                0x0327, 0x0328, 0x0323, 0x0324, 0x0325, 0x0333, 0x0332, 0x0326,
                                                0x031C, 0x032E, 0xFE22, 0xFE23, 0x0338, 0,      0x0313, 0};

char16_t SpacingCharacter(unsigned char byte)
{
    if (byte < 0x80) {
        return byte;
    }
    const char16_t character = byte >= 0xA0 && byte <= 0xCF ? spacing.at(byte - 0xA0U) : u'\0';
    return character != 0 ? character : HighCharacters(Charset::Windows1252)[byte - 0x80U];
}

} // namespace

QString DecodeAnsel(std::string_view bytes)
{
    QString text;
    text.reserve(static_cast<qsizetype>(bytes.size()));
    QString marks;
    for (const char raw : bytes) {
        const auto byte = static_cast<unsigned char>(raw);
        const char16_t mark = byte >= 0xE0 ? combining.at(byte - 0xE0U) : u'\0';
        if (mark != 0) {
            marks += QChar(mark);
            continue;
        }
        const bool endsLine = byte < 0x20;
        if (!endsLine) {
            text += QChar(SpacingCharacter(byte));
        }
        text += marks;
        marks.clear();
        if (endsLine) {
            text += QChar(SpacingCharacter(byte));
        }
    }
    text += marks;
    return text.normalized(QString::NormalizationForm_C);
}

} // namespace stemwright
