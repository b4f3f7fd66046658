// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "index/namesearch.h"

#include "index/messages.h"

namespace stemwright
{

namespace
{

constexpr QChar anyText = u'*';

QString WithFirstBlankDoubled(QString text)
{
    if (const qsizetype blank = text.indexOf(u' '); blank >= 0) {
        text.insert(blank, u' ');
    }
    return text;
}

/// Lists that were searched by a quoted criterion never found what has an apostrophe in it.
QString BeforeApostrophe(const QString& text)
{
    return text.section(u'\'', 0, 0);
}

/// Searches by the beginning and, when that finds nothing, anywhere in the names.
template <typename Find>
std::optional<std::size_t> ByEither(const QString& text, Find find)
{
    const NameCriteria criteria(text);
    const std::optional<std::size_t> found = find(criteria.beginning);
    return found ? found : find(criteria.anywhere);
}

} // namespace

NameCriteria::NameCriteria(const QString& text)
    : beginning(WithFirstBlankDoubled(text) + anyText), anywhere(anyText + text + anyText)
{
}

NameSearch::NameSearch(NameIndex& index) : m_index(index), m_current(index.rowAt(0)) {}

void NameSearch::setText(const QString& text)
{
    m_text = text;
    m_fits = true;
    const QString wanted = BeforeApostrophe(text);
    if (wanted.isEmpty()) {
        m_current = m_index.rowAt(0);
        return;
    }
    std::optional<std::size_t> found = m_index.findFrom(0, Pattern(WithFirstBlankDoubled(wanted) + anyText));
    if (!found && wanted.contains(u' ')) {
        found = m_index.findFrom(0, Pattern(wanted + anyText));
    }
    m_fits = found.has_value();
    if (found) {
        m_current = m_index.rowAt(*found);
    }
}

void NameSearch::goTo(NameRow row)
{
    m_fits = true;
    m_current = row;
    m_text = m_index.fullName(row);
}

bool NameSearch::find(Talk& talk)
{
    const std::optional<QString> answer = talk.input(indexmessages::FindName(m_lastText));
    const QString wanted = BeforeApostrophe(answer.value_or(QString()));
    if (wanted.isEmpty()) {
        return false;
    }
    m_lastText = wanted;
    const auto found = ByEither(wanted, [this](const Pattern& pattern) { return m_index.findFrom(0, pattern); });
    m_canFindNext = m_canFindPrevious = found.has_value();
    if (!found) {
        talk.tell(indexmessages::NoMatch());
        return false;
    }
    goTo(m_index.rowAt(*found));
    return true;
}

bool NameSearch::findNext(Talk& talk)
{
    const std::size_t next = m_index.positionOf(m_current) + 1;
    const auto found =
        ByEither(m_lastText, [this, next](const Pattern& pattern) { return m_index.findFrom(next, pattern); });
    if (!found) {
        m_canFindNext = false;
        talk.tell(indexmessages::NoNextMatch());
        return false;
    }
    m_current = m_index.rowAt(*found);
    m_fits = true;
    m_canFindPrevious = true;
    return true;
}

bool NameSearch::findPrevious(Talk& talk)
{
    const std::size_t current = m_index.positionOf(m_current);
    const auto found =
        ByEither(m_lastText, [this, current](const Pattern& pattern) { return m_index.findBefore(current, pattern); });
    if (!found) {
        m_canFindPrevious = false;
        talk.tell(indexmessages::NoPreviousMatch());
        return false;
    }
    m_current = m_index.rowAt(*found);
    m_fits = true;
    m_canFindNext = true;
    return true;
}

} // namespace stemwright
