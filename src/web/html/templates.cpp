// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/html/templates.h"

#include "base/files.h"

#include <algorithm>

namespace stemwright
{

namespace
{

char LowerCase(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool SameCharacter(char first, char second)
{
    return LowerCase(first) == LowerCase(second);
}

std::string Replaced(const std::string& line, const Replacement& replacement)
{
    std::string result;
    auto position = line.begin();
    while (true) {
        const auto found = std::search(position, line.end(), replacement.placeholder.begin(),
                                       replacement.placeholder.end(), SameCharacter);
        result.append(position, found);
        if (found == line.end()) {
            return result;
        }
        result.append(replacement.value);
        position = found + static_cast<std::ptrdiff_t>(replacement.placeholder.size());
    }
}

} // namespace

std::string ReadTemplate(const QString& path)
{
    return ReadWholeFile(path).toStdString();
}

std::string FillTemplate(std::string_view content, const std::vector<Replacement>& replacements)
{
    std::string page;
    while (!content.empty()) {
        const std::size_t end = std::min(content.find('\n'), content.size());
        std::string line(content.substr(0, end));
        content.remove_prefix(std::min(end + 1, content.size()));
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        for (const Replacement& replacement : replacements) {
            line = Replaced(line, replacement);
        }
        page.append(line).append("\r\n");
    }
    return page;
}

PreparedTemplate::PreparedTemplate(std::string_view content, const std::vector<std::string_view>& placeholders)
{
    // Where a value goes is marked by a control character, which templates do not contain, and the value's number.
    constexpr char mark = '\x01';
    std::vector<Replacement> marks;
    for (const std::string_view placeholder : placeholders) {
        marks.push_back({placeholder, {mark, static_cast<char>(marks.size())}});
    }
    m_end = FillTemplate(content, marks);
    for (std::size_t found = m_end.find(mark); found != std::string::npos; found = m_end.find(mark)) {
        m_pieces.push_back({m_end.substr(0, found), static_cast<std::size_t>(m_end[found + 1])});
        m_end.erase(0, found + 2);
    }
}

void PreparedTemplate::append(std::string& page, const std::vector<std::string_view>& values) const
{
    for (const Piece& piece : m_pieces) {
        page.append(piece.text).append(values[piece.value]);
    }
    page.append(m_end);
}

} // namespace stemwright
