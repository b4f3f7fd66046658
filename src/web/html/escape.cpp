// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/escape.h"

#include <QtCore/QString>

#include <array>

namespace stemwright
{

namespace
{

/// What stands in a page for each ASCII character; no value leaves the character as it is.
using AsciiTable = std::array<std::optional<std::string_view>, 128>;

constexpr std::size_t firstPrintable = 0x20;
constexpr std::size_t deleteCharacter = 0x7F;
constexpr unsigned endOfAscii = 0x80;

constexpr AsciiTable WithoutControls()
{
    AsciiTable table{};
    for (std::size_t control = 0; control < firstPrintable; ++control) {
        table[control] = std::string_view("");
    }
    table[deleteCharacter] = std::string_view("");
    return table;
}

constexpr AsciiTable ForAuthors()
{
    AsciiTable table = WithoutControls();
    for (const char kept : {'\t', '\n', '\r'}) {
        table[static_cast<std::size_t>(kept)] = std::nullopt;
    }
    return table;
}

constexpr AsciiTable ForText()
{
    AsciiTable table = WithoutControls();
    table['\t'] = " ";
    table['\n'] = " ";
    table['&'] = "&amp;";
    table['<'] = "&lt;";
    table['>'] = "&gt;";
    table['"'] = "&quot;";
    return table;
}

constexpr AsciiTable ForScript(ScriptQuotes quotes)
{
    AsciiTable table = ForText();
    table['"'] = quotes == ScriptQuotes::Concatenated ? "\"+'\"'+\"" : "\\\"";
    table['\\'] = "\\\\";
    return table;
}

constexpr AsciiTable textTable = ForText();
constexpr AsciiTable authorTable = ForAuthors();
constexpr AsciiTable concatenatedTable = ForScript(ScriptQuotes::Concatenated);
constexpr AsciiTable escapedTable = ForScript(ScriptQuotes::Escaped);

void AppendAscii(std::string& page, char character, const AsciiTable& table)
{
    const std::optional<std::string_view>& replacement = table[static_cast<unsigned char>(character)];
    if (replacement) {
        page.append(*replacement);
    } else {
        page.push_back(character);
    }
}

void AppendReference(std::string& page, unsigned character)
{
    page.append("&#").append(std::to_string(character)).push_back(';');
}

void Append(std::string& page, std::string_view utf8, const AsciiTable& table)
{
    std::size_t written = 0;
    for (std::size_t position = 0; position < utf8.size(); ++position) {
        const auto byte = static_cast<unsigned char>(utf8[position]);
        if (byte >= endOfAscii) {
            page.append(utf8, written, position - written);
            const QString rest = QString::fromUtf8(utf8.substr(position));
            for (const unsigned character : rest.toUcs4()) {
                if (character < endOfAscii) {
                    AppendAscii(page, static_cast<char>(character), table);
                } else {
                    AppendReference(page, character);
                }
            }
            return;
        }
        if (table[byte]) {
            page.append(utf8, written, position - written);
            page.append(*table[byte]);
            written = position + 1;
        }
    }
    page.append(utf8, written);
}

bool IsLetterOrDigit(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

bool IsControl(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte < firstPrintable || byte == deleteCharacter;
}

/// Percent-encodes every byte but letters, digits and the characters of `kept`. The ampersand, where it is kept, is
/// written as an attribute needs it.
void AppendEncoded(std::string& page, std::string_view utf8, std::string_view kept)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    for (const char character : utf8) {
        const auto byte = static_cast<unsigned char>(character);
        if (IsControl(character)) {
            continue;
        }
        if (character == '&' && kept.find('&') != std::string_view::npos) {
            page.append("&amp;");
        } else if (IsLetterOrDigit(character) || kept.find(character) != std::string_view::npos) {
            page.push_back(character);
        } else {
            page.push_back('%');
            page.push_back(digits[byte >> 4]);
            page.push_back(digits[byte & 0xF]);
        }
    }
}

bool StartsWith(std::string_view text, std::string_view start)
{
    const QLatin1StringView head(text.data(), static_cast<qsizetype>(std::min(text.size(), start.size())));
    return head.compare(QLatin1StringView(start.data(), static_cast<qsizetype>(start.size())), Qt::CaseInsensitive) ==
           0;
}

} // namespace

void AppendText(std::string& page, std::string_view utf8)
{
    Append(page, utf8, textTable);
}

void AppendAuthorHtml(std::string& page, std::string_view utf8)
{
    Append(page, utf8, authorTable);
}

void AppendScriptText(std::string& page, std::string_view utf8, ScriptQuotes quotes)
{
    Append(page, utf8, quotes == ScriptQuotes::Concatenated ? concatenatedTable : escapedTable);
}

void AppendMailAddress(std::string& page, std::string_view utf8)
{
    AppendEncoded(page, utf8, "@.-_~+!$*=/");
}

void AppendWebAddress(std::string& page, std::string_view utf8)
{
    if (!NamesWebScheme(utf8)) {
        page.append("http://");
    }
    AppendEncoded(page, utf8, "%-._~:/?#[]@!$&()*+,;=");
}

bool NamesWebScheme(std::string_view utf8)
{
    return StartsWith(utf8, "http://") || StartsWith(utf8, "https://");
}

} // namespace stemwright
