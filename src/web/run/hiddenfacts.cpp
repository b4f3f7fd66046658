// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/run/hiddenfacts.h"

namespace stemwright
{

namespace
{

class FactSearch
{
public:
    FactSearch(SiteTexts& texts, const SiteRun& run) : m_texts(texts), m_run(run) {}

    /// Whether anything of the person's was left out. What both spouses of a family share counts for the first one.
    bool withholdFactsOf(TreePosition person)
    {
        m_found = false;
        withhold(ItemTable::Individual, [&](std::size_t column) { return m_run.texts.individual(person, column); });
        withholdRelations(m_run.tree.parentFamily(person), person);
        for (const TreePosition family : m_run.tree.spouseFamilies(person)) {
            if (m_run.tree.hasRecord(family)) {
                withhold(ItemTable::Family, [&](std::size_t column) { return m_run.texts.family(family, column); });
            }
            for (const TreePosition child : m_run.tree.children(family)) {
                withholdRelations(family, child);
            }
        }
        return m_found;
    }

private:
    void withholdRelations(TreePosition family, TreePosition child)
    {
        if (family != nowhere) {
            withhold(ItemTable::ChildInFamily,
                     [&](std::size_t column) { return m_run.texts.childInFamily(family, child, column); });
        }
    }

    /// `cell` gives the text of a column of the table.
    template <class Cell>
    void withhold(ItemTable table, Cell cell)
    {
        for (const PublishedItem& item : m_run.texts.items()) {
            if (item.table != table || IsPartOfName(item)) {
                continue;
            }
            withhold(cell(item.value));
            if (item.kind == ItemKind::Event) {
                withhold(cell(item.place));
            }
        }
    }

    void withhold(std::optional<std::string_view> text)
    {
        if (text && m_run.hiddenNames.isAnyNamedInFact(*text)) {
            m_texts.withhold(*text);
            m_found = true;
        }
    }

    SiteTexts& m_texts;
    const SiteRun& m_run;
    bool m_found = false;
};

} // namespace

std::vector<TreePosition> WithholdFacts(SiteTexts& texts, const SiteRun& run)
{
    std::vector<TreePosition> persons;
    if (run.settings.protectedPersons == ProtectedPersons::Shown) {
        return persons;
    }
    FactSearch search(texts, run);
    for (TreePosition person = 0; person < run.tree.individuals(); ++person) {
        if (run.isOnSite(person) && search.withholdFactsOf(person)) {
            persons.push_back(person);
        }
    }
    return persons;
}

} // namespace stemwright
