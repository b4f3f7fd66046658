// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/charset.h"

namespace stemwright
{

namespace
{

/// Windows-1252; its five free bytes are the control characters of ISO 8859-1.
constexpr std::u16string_view windows1252 = u"€\x81"
                                            u"‚ƒ„…†‡ˆ‰Š‹Œ\x8d"
                                            u"Ž\x8f"
                                            u"\x90"
                                            u"‘’“”•–—˜™š›œ\x9d"
                                            u"žŸ"
                                            u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
                                            u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
                                            u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";

/// The code page of the first IBM personal computers.
constexpr std::u16string_view dos437 = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
                                       u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
                                       u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
                                       u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";

/// The code page of Western European DOS.
constexpr std::u16string_view dos850 = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
                                       u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
                                       u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
                                       u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

/// The character set of Macintosh before Unicode.
constexpr std::u16string_view macRoman = u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
                                         u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
                                         u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
                                         u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";

static_assert(windows1252.size() == 128 && dos437.size() == 128 && dos850.size() == 128 && macRoman.size() == 128);

} // namespace

std::u16string_view HighCharacters(Charset charset)
{
    switch (charset) {
    case Charset::Dos437:
        return dos437;
    case Charset::Dos850:
        return dos850;
    case Charset::MacRoman:
        return macRoman;
    default:
        return windows1252;
    }
}

} // namespace stemwright
