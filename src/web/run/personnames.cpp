// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/personnames.h"

#include "web/html/escape.h"
#include "web/run/yearatend.h"

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

/// The text without blanks at its ends and with one blank for several.
std::string Collapsed(std::string_view utf8)
{
    std::string text;
    AppendWords(text, utf8, " ");
    return text;
}

} // namespace

NameParts::NameParts(const SiteTexts& texts, const Privacy& privacy, std::size_t individuals)
    : m_texts(texts), m_privacy(privacy)
{
    for (const PublishedItem& item : texts.items()) {
        if (IsPartOfName(item)) {
            m_shown[item.value] |= item.inTree;
            m_private[item.value] |= item.isPrivate;
            m_anyPrivate |= item.isPrivate;
        }
    }
    if (std::find(m_shown.begin(), m_shown.end(), true) == m_shown.end()) {
        m_shown[individualcolumn::givenName] = true;
        m_shown[individualcolumn::surname] = true;
    }
    m_htmlBegin.reserve(individuals + 1);
    for (TreePosition individual = 0; individual < individuals; ++individual) {
        m_htmlBegin.push_back(m_html.size());
        AppendText(m_html, displayName(individual));
    }
    m_htmlBegin.push_back(m_html.size());
}

std::string NameParts::displayName(TreePosition individual) const
{
    return joined(individual, {{{individualcolumn::title, " "},
                                {individualcolumn::givenName, " "},
                                {individualcolumn::surname, " "},
                                {individualcolumn::suffix, ", "}}});
}

std::string NameParts::indexName(TreePosition individual) const
{
    return joined(individual, {{{individualcolumn::surname, " "},
                                {individualcolumn::givenName, ", "},
                                {individualcolumn::suffix, " "},
                                {individualcolumn::title, ", "}}});
}

bool NameParts::isWithheldFrom(TreePosition individual) const
{
    return m_anyPrivate && m_privacy.isProtected(individual);
}

std::string NameParts::joined(TreePosition individual, const std::array<Part, partCount>& parts) const
{
    const bool withholds = isWithheldFrom(individual);
    std::string name;
    for (const Part& part : parts) {
        if (m_shown[part.column] && !(withholds && m_private[part.column])) {
            AppendWords(name, m_texts.individual(individual, part.column).value_or(""), part.separator);
        }
    }
    return !name.empty() ? name : std::string(withholds ? privatePerson : unknownPerson);
}

bool IsPartOfName(const PublishedItem& item)
{
    return item.kind == ItemKind::NamePart && item.table == ItemTable::Individual && item.value < partCount;
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

std::string TidyName(std::string_view utf8)
{
    constexpr std::string_view afterSurname = ", ";
    std::string name = Collapsed(utf8);
    if (name.ends_with(',')) {
        name.pop_back();
    }
    return name.starts_with(afterSurname) ? name.substr(afterSurname.size()) : name;
}

std::string TidyHeadName(const TreeDefinition& tree)
{
    return TidyName(tree.headName.toStdString());
}

} // namespace stemwright
