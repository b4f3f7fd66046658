// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/personnames.h"

#include "web/yearatend.h"

namespace stemwright
{

namespace
{

bool IsBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

/// Appends the text's words, with one blank between them and `separator` before the first unless `name` is empty.
void AppendWords(std::string& name, std::string_view text, std::string_view separator)
{
    bool atStart = true;
    for (std::size_t position = 0; position < text.size();) {
        if (IsBlank(text[position])) {
            ++position;
            continue;
        }
        std::size_t end = position;
        while (end < text.size() && !IsBlank(text[end])) {
            ++end;
        }
        if (!name.empty()) {
            name.append(atStart ? separator : " ");
        }
        name.append(text, position, end - position);
        atStart = false;
        position = end;
    }
}

bool IsSource(const PublishedItem& item, QLatin1StringView column)
{
    return column.compare(item.source, Qt::CaseInsensitive) == 0;
}

} // namespace

NameParts::NameParts(const SiteTexts& texts) : m_texts(texts)
{
    for (const PublishedItem& item : texts.items()) {
        if (item.inTree && IsPartOfName(item)) {
            m_title |= IsSource(item, QLatin1StringView("Title"));
            m_givenName |= IsSource(item, QLatin1StringView("GivenName"));
            m_surname |= IsSource(item, QLatin1StringView("Surname"));
            m_suffix |= IsSource(item, QLatin1StringView("Suffix"));
        }
    }
    if (!m_title && !m_givenName && !m_surname && !m_suffix) {
        m_givenName = true;
        m_surname = true;
    }
}

std::string NameParts::displayName(TreePosition individual) const
{
    std::string name;
    const auto append = [this, &name, individual](bool shown, std::size_t column, std::string_view separator) {
        if (shown) {
            AppendWords(name, m_texts.individual(individual, column).value_or(""), separator);
        }
    };
    append(m_title, individualcolumn::title, " ");
    append(m_givenName, individualcolumn::givenName, " ");
    append(m_surname, individualcolumn::surname, " ");
    append(m_suffix, individualcolumn::suffix, ", ");
    return name.empty() ? std::string(unknownPerson) : name;
}

std::string NameParts::indexName(TreePosition individual) const
{
    std::string name;
    std::string_view separator = " ";
    const auto append = [&](bool shown, std::size_t column) {
        if (shown) {
            const std::size_t before = name.size();
            AppendWords(name, m_texts.individual(individual, column).value_or(""), separator);
            separator = name.size() == before ? separator : " ";
        }
    };
    append(m_surname, individualcolumn::surname);
    separator = ", ";
    append(m_title, individualcolumn::title);
    append(m_givenName, individualcolumn::givenName);
    append(m_suffix, individualcolumn::suffix);
    return name.empty() ? std::string(unknownPerson) : name;
}

bool IsPartOfName(const PublishedItem& item)
{
    return item.kind == ItemKind::NamePart &&
           (IsSource(item, QLatin1StringView("Title")) || IsSource(item, QLatin1StringView("GivenName")) ||
            IsSource(item, QLatin1StringView("Surname")) || IsSource(item, QLatin1StringView("Suffix")));
}

std::string LifeYears(const SiteTexts& texts, TreePosition individual)
{
    const auto year = [&texts, individual](std::size_t column) {
        const std::optional<int> found = YearAtEnd(texts.individual(individual, column).value_or(""));
        return found ? std::to_string(*found) : std::string();
    };
    const std::string birth = year(individualcolumn::birthDate);
    const std::string death = year(individualcolumn::deathDate);
    return birth.empty() && death.empty() ? std::string() : '(' + birth + '-' + death + ')';
}

std::string Collapsed(std::string_view utf8)
{
    std::string text;
    AppendWords(text, utf8, " ");
    return text;
}

} // namespace stemwright
