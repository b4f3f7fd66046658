// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/privacy.h"

#include "web/run/yearatend.h"

namespace stemwright
{

bool IsPrivacyProtected(std::optional<std::string_view> birthDate, std::optional<std::string_view> deathDate,
                        std::optional<std::string_view> deathPlace, int maxPrivacyAge, int currentYear)
{
    if (deathPlace || deathDate || !birthDate) {
        return false;
    }
    const std::optional<int> birthYear = YearAtEnd(*birthDate);
    return birthYear && currentYear <= *birthYear + maxPrivacyAge;
}

namespace
{

bool KnownDead(const SiteTexts& texts, TreePosition individual)
{
    return texts.individual(individual, individualcolumn::deathDate) ||
           texts.individual(individual, individualcolumn::deathPlace);
}

std::string_view BirthOf(const SiteTexts& texts, TreePosition individual)
{
    return texts.individual(individual, individualcolumn::birthDate).value_or("");
}

/// Whether four digits somewhere in a date text, and no more, are this year or a later one.
bool HoldsYearSince(std::string_view date, int firstYear)
{
    constexpr std::string_view digits = "0123456789";
    constexpr std::size_t digitsOfYear = 4;
    for (std::size_t at = date.find_first_of(digits); at < date.size(); at = date.find_first_of(digits, at)) {
        const std::size_t end = std::min(date.find_first_not_of(digits, at), date.size());
        const std::optional<int> year =
            end - at == digitsOfYear ? YearAtEnd(date.substr(at, digitsOfYear)) : std::nullopt;
        if (year && *year >= firstYear) {
            return true;
        }
        at = end;
    }
    return false;
}

} // namespace

Privacy::Privacy(const FamilyTree& tree, const SiteTexts& texts, ProtectedPersons handling, int maxPrivacyAge,
                 int currentYear)
    : m_hides(handling == ProtectedPersons::Hidden), m_protected(tree.individuals(), false)
{
    for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
        m_protected[individual] =
            IsPrivacyProtected(texts.individual(individual, individualcolumn::birthDate),
                               texts.individual(individual, individualcolumn::deathDate),
                               texts.individual(individual, individualcolumn::deathPlace), maxPrivacyAge, currentYear);
    }
    if (!m_hides) {
        return;
    }
    hideDescendants(tree);
    leaveOut(tree, texts);
    m_doubtful.assign(tree.individuals(), false);
    for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
        m_doubtful[individual] = !m_protected[individual] && !KnownDead(texts, individual) &&
                                 HoldsYearSince(BirthOf(texts, individual), currentYear - maxPrivacyAge);
    }
}

void Privacy::leaveOut(const FamilyTree& tree, const SiteTexts& texts)
{
    m_leftOut = m_protected;
    for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
        if (m_hiddenBranch[individual] && !m_protected[individual]) {
            // A year of birth that does not protect is one from long ago.
            m_leftOut[individual] = !KnownDead(texts, individual) && !YearAtEnd(BirthOf(texts, individual));
        }
    }
}

void Privacy::hideDescendants(const FamilyTree& tree)
{
    m_hiddenBranch = m_protected;
    std::vector<TreePosition> waiting;
    for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
        if (m_protected[individual]) {
            waiting.push_back(individual);
        }
    }
    while (!waiting.empty()) {
        const TreePosition parent = waiting.back();
        waiting.pop_back();
        for (const TreePosition family : tree.spouseFamilies(parent)) {
            for (const auto& children : {tree.children(family), tree.childrenByParents(family)}) {
                for (const TreePosition child : children) {
                    if (!m_hiddenBranch[child]) {
                        m_hiddenBranch[child] = true;
                        waiting.push_back(child);
                    }
                }
            }
        }
    }
}

} // namespace stemwright
