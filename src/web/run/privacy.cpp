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
    m_leftOut = m_protected;
    for (TreePosition individual = 0; individual < tree.individuals(); ++individual) {
        if (m_hiddenBranch[individual] && !m_protected[individual]) {
            const auto has = [&](std::size_t column) { return texts.individual(individual, column).has_value(); };
            const auto birth = texts.individual(individual, individualcolumn::birthDate).value_or("");
            // A year of birth that does not protect is one from long ago.
            m_leftOut[individual] =
                !has(individualcolumn::deathDate) && !has(individualcolumn::deathPlace) && !YearAtEnd(birth);
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
