// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/customfacts.h"

#include "base/text.h"

namespace stemwright
{

namespace
{

std::string StemOf(int number)
{
    return "_FA" + std::to_string(number);
}

} // namespace

bool CustomFacts::declare(std::string_view stem, std::string_view tag, std::string_view label)
{
    if (m_byStem.contains(folded(stem))) {
        return false;
    }
    ++m_counter;
    CustomFact fact = withColumns(stem);
    fact.tag = tag;
    fact.label = label;
    append(std::move(fact));
    return true;
}

const CustomFact& CustomFacts::forTag(std::string_view tag, std::string_view label)
{
    const auto found = m_byTag.find(folded(tag));
    return found != m_byTag.end() ? m_facts[found->second] : add(tag, label);
}

const CustomFact& CustomFacts::forLabel(std::string_view label)
{
    const CustomFact* found = findLabel(label);
    return found != nullptr ? *found : add({}, label);
}

const CustomFact* CustomFacts::findLabel(std::string_view label)
{
    const auto found = m_byLabel.find(folded(label));
    return found != m_byLabel.end() ? &m_facts[found->second] : nullptr;
}

const CustomFact& CustomFacts::forStem(std::string_view stem)
{
    const std::string& key = folded(stem);
    const auto used = m_used.find(key);
    return used != m_used.end() ? used->second : m_used.emplace(key, withColumns(stem)).first->second;
}

int CustomFacts::slotsLeft()
{
    int left = 0;
    for (int number = m_counter + 1; number <= m_slots; ++number) {
        left += isTaken(number) ? 0 : 1;
    }
    return left;
}

/// Whether the file declares or uses the stem with this number itself.
bool CustomFacts::isTaken(int number)
{
    const std::string& stem = folded(StemOf(number));
    return m_byStem.contains(stem) || m_used.contains(stem);
}

/// Text with the case taken out, for every script; valid until the next call.
const std::string& CustomFacts::folded(std::string_view text)
{
    if (!IsAscii(text)) {
        m_folded = QString::fromUtf8(text).toCaseFolded().toStdString();
        return m_folded;
    }
    m_folded.assign(text);
    for (char& character : m_folded) {
        character = character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return m_folded;
}

/// Adds a fact under the next stem. Stems that the file declares or uses itself are passed over, because a stem holds
/// one fact only; a file whose own facts are numbered without gaps and declared first never has one in the way.
const CustomFact& CustomFacts::add(std::string_view tag, std::string_view label)
{
    do {
        ++m_counter;
    } while (isTaken(m_counter));
    CustomFact fact = withColumns(StemOf(m_counter));
    fact.tag = tag;
    fact.label = label;
    append(std::move(fact));
    return m_facts.back();
}

/// Of facts with the same tag or label the first one is found.
void CustomFacts::append(CustomFact fact)
{
    const std::size_t position = m_facts.size();
    m_byStem.emplace(folded(fact.stem), position);
    if (!fact.tag.empty()) {
        m_byTag.emplace(folded(fact.tag), position);
    }
    m_byLabel.emplace(folded(fact.label), position);
    m_facts.push_back(std::move(fact));
}

CustomFact CustomFacts::withColumns(std::string_view stem) const
{
    const QString name = QString::fromUtf8(stem);
    CustomFact fact;
    fact.stem = stem;
    fact.dateColumn = m_rows.column(name + QStringLiteral("_Date"));
    fact.placeColumn = m_rows.column(name + QStringLiteral("_Place"));
    return fact;
}

} // namespace stemwright
