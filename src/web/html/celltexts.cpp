// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/celltexts.h"

#include "web/html/escape.h"

namespace stemwright
{

namespace
{

/// Dates are nearly always ASCII, for which the bytes are the characters.
void AppendCapitalized(std::string& text, std::string_view word)
{
    constexpr unsigned char endOfAscii = 0x80;
    if (std::all_of(word.begin(), word.end(),
                    [](char byte) { return static_cast<unsigned char>(byte) < endOfAscii; })) {
        for (std::size_t position = 0; position < word.size(); ++position) {
            const QChar character = QChar::fromLatin1(word[position]);
            text.push_back((position == 0 ? character.toUpper() : character.toLower()).toLatin1());
        }
        return;
    }
    const QString letters = QString::fromUtf8(word);
    const qsizetype first = letters.front().isHighSurrogate() ? 2 : 1;
    text.append((letters.left(first).toUpper() + letters.mid(first).toLower()).toStdString());
}

} // namespace

std::string ProperCase(std::string_view utf8)
{
    std::string result;
    while (true) {
        const std::size_t end = std::min(utf8.find(' '), utf8.size());
        result.push_back(' ');
        AppendCapitalized(result, utf8.substr(0, end));
        if (end == utf8.size()) {
            return result;
        }
        utf8.remove_prefix(end + 1);
    }
}

std::string DateCell(std::string_view date)
{
    std::string cell;
    AppendText(cell, ProperCase(date));
    return cell;
}

std::string TextCell(std::string_view utf8)
{
    std::string cell;
    while (true) {
        const std::size_t end = std::min(utf8.find('\n'), utf8.size());
        AppendText(cell, utf8.substr(0, end));
        if (end == utf8.size()) {
            return cell;
        }
        cell.append("<BR>");
        utf8.remove_prefix(end + 1);
    }
}

} // namespace stemwright
