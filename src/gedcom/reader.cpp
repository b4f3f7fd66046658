// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/reader.h"

#include <array>
#include <charconv>

namespace stemwright
{

namespace
{

constexpr std::string_view blanks = " \t";

std::size_t SkipBlanks(std::string_view text)
{
    return std::min(text.find_first_not_of(blanks), text.size());
}

std::string_view TrimLeft(std::string_view text)
{
    return text.substr(SkipBlanks(text));
}

std::string_view TrimRight(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

char Upper(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

/// Splits `text` at its first blank into the part before it and the part after it; without one, all is the first part.
std::pair<std::string_view, std::string_view> SplitAtBlank(std::string_view text)
{
    const std::size_t blank = text.find_first_of(blanks);
    if (blank == std::string_view::npos) {
        return {text, text.substr(text.size())};
    }
    return {text.substr(0, blank), text.substr(blank + 1)};
}

bool IsXrefToken(std::string_view token)
{
    return token.front() == '@' && token.back() == '@';
}

/// Sets the value from the text after the tag: trimmed on the left, without a final comma, commas collapsed in place.
/// `rest` is a part of the source's buffer, which `base` can change.
void TakeValue(GedcomLine& line, char* base, std::string_view rest, const char* physicalEnd)
{
    const std::size_t lead = SkipBlanks(rest);
    line.droppedBefore = rest.substr(0, lead);
    std::string_view value = rest.substr(lead);
    if (value.ends_with(',')) {
        value.remove_suffix(1);
    }
    const char* end = value.data() + value.size();
    line.droppedAfter = {end, static_cast<std::size_t>(physicalEnd - end)};
    char* text = base + (value.data() - base);
    line.Value = {text, CollapseCommas(text, value.size())};
}

} // namespace

bool ReadGedcomLine(LineSource& source, GedcomLine& line)
{
    SourceLine physical;
    if (!source.next(physical)) {
        return false;
    }
    line = {};
    line.number = physical.number;
    const std::string_view whole(physical.bytes, physical.length);
    std::string_view text = TrimRight(TrimLeft(whole));
    if (text.empty()) {
        return true;
    }
    line.Level = text.front();
    text = TrimLeft(text.substr(1));
    const auto [token, rest] = SplitAtBlank(text);
    if (token.size() == text.size()) {
        line.Tag = token;
        line.XrefId = 0;
        return true;
    }
    line.hasXref = IsXrefToken(token);
    line.XrefId = line.hasXref ? XrefToNumber(token) : -1;
    line.Tag = token;
    TakeValue(line, physical.bytes, rest, whole.data() + whole.size());
    if (line.XrefId >= 0) {
        const auto [tag, value] = SplitAtBlank(line.Value);
        line.Tag = tag;
        line.Value = TrimLeft(value);
    }
    return true;
}

int XrefToNumber(std::string_view text)
{
    constexpr std::string_view dropped = "@IFUS";
    // Eleven characters hold any 32-bit number with its sign; leading zeros are not kept, so longer ones fit as well.
    std::array<char, 12> digits{};
    std::size_t count = 0;
    bool any = false;
    for (const char character : TrimRight(TrimLeft(text))) {
        if (dropped.find(character) != std::string_view::npos) {
            continue;
        }
        const char digit = character == '-' || character == '_' ? '0' : character;
        if (digit < '0' || digit > '9' || count == digits.size()) {
            return -1;
        }
        any = true;
        if (digit != '0' || count > 0) {
            digits[count++] = digit;
        }
    }
    if (!any) {
        return -1;
    }
    int number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + count, number);
    return count == 0 ? 0 : result.ec == std::errc() ? number : -1;
}

GedcomName SplitGedcomName(std::string_view value)
{
    const std::size_t first = value.find('/');
    if (first == std::string_view::npos) {
        return {value, {}, {}};
    }
    const std::string_view after = value.substr(first + 1);
    const std::size_t second = after.find('/');
    if (second == std::string_view::npos) {
        return {value.substr(0, first), after, {}};
    }
    return {value.substr(0, first), after.substr(0, second), after.substr(second + 1)};
}

std::string_view StandardTagForLabel(std::string_view label)
{
    for (const std::string_view tag : {"BURI", "EDUC", "MIGR", "OCCU", "RESI"}) {
        if (StartsWith(label, tag)) {
            return tag;
        }
    }
    return {};
}

bool IsCustomFactTag(std::string_view tag)
{
    const auto before = [](std::string_view left, std::string_view right) {
        return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                            [](char a, char b) { return Upper(a) < Upper(b); });
    };
    return !before(tag, "_FA1") && !before("_FA99", tag);
}

std::size_t CollapseCommas(char* text, std::size_t length)
{
    for (int pass = 0; pass < 3; ++pass) {
        if (std::string_view(text, length).find(",,") == std::string_view::npos) {
            break;
        }
        std::size_t written = 0;
        for (std::size_t read = 0; read < length; ++read) {
            text[written++] = text[read];
            if (text[read] == ',' && read + 1 < length && text[read + 1] == ',') {
                ++read;
            }
        }
        length = written;
    }
    return length;
}

bool SameText(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && StartsWith(left, right);
}

bool StartsWith(std::string_view text, std::string_view prefix)
{
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(), [](char a, char b) { return Upper(a) == Upper(b); });
}

} // namespace stemwright
