// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/people/personalpage.h"

#include "web/html/celltexts.h"
#include "web/html/escape.h"
#include "web/html/templates.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"
#include "web/people/contactinfo.h"
#include "web/people/partnerships.h"
#include "web/people/personpart.h"
#include "web/run/ancestorchain.h"

namespace stemwright
{

namespace
{

class PersonalPage : PersonPart
{
public:
    using PersonPart::PersonPart;

    void write()
    {
        writeHeading();
        writeAncestors();
        writePersonalData();
        writeParents();
    }

private:
    void writeHeading()
    {
        page().append("<H3>");
        page().append(m_run.names.displayHtml(m_person));
        page().append("&nbsp;");
        AppendTreeLinks(page(), m_run, m_person);
        AppendInfoLinks(page(), m_run, m_person);
        line("</H3>");
    }

    void writeAncestors()
    {
        std::vector<AncestorChain> written;
        for (const PublishedTree& tree : m_run.trees) {
            for (EntryNumber entry = tree.walk.firstEntry(m_person); entry != noEntry;
                 entry = tree.walk.entries()[entry].nextOfPerson) {
                const AncestorChain chain = AncestorChainOf(tree.walk, entry);
                if (chain.size() < 2 || std::find(written.begin(), written.end(), chain) != written.end()) {
                    continue;
                }
                if (written.empty()) {
                    line("<B>Descendant of:</B>");
                    line(rule);
                }
                writeChain(chain);
                written.push_back(chain);
            }
        }
    }

    /// The parent, who is element 0, stands among the parents below.
    void writeChain(const AncestorChain& chain)
    {
        for (std::size_t element = chain.size() - 1; element > 0; --element) {
            if (m_run.mayBeNamed(chain[element])) {
                page().append("<DIV>").append(std::to_string(element));
                appendPersonLink(chain[element]);
                line("</DIV>");
            }
        }
        line("<BR>");
    }

    void writePersonalData()
    {
        bool open = false;
        for (const PublishedItem& item : m_run.texts.items()) {
            if (item.kind != ItemKind::Event || item.table != ItemTable::Individual || !m_run.mayShow(item, m_person)) {
                continue;
            }
            const auto date = m_run.texts.individual(m_person, item.value).value_or("");
            const auto place = m_run.texts.individual(m_person, item.place).value_or("");
            if (date.empty() && place.empty()) {
                continue;
            }
            if (!open) {
                line("<BR><BR><B>Personal Data:</B>");
                line(rule);
                beginTable("\t<TH WIDTH=\"20%\">Item</TH>", "\t<TH WIDTH=\"20%\">Date</TH>",
                           "\t<TH>Place/Description</TH>");
                open = true;
            }
            writeEvent(item, date, place);
        }
        if (open) {
            line("</TABLE>");
        }
    }

    void writeParents()
    {
        const TreePosition family = m_run.tree.parentFamily(m_person);
        if (family == nowhere || (m_run.tree.husband(family) == nowhere && m_run.tree.wife(family) == nowhere)) {
            return;
        }
        line("<BR><BR><B>Parents:</B>");
        line(rule);
        beginTable("\t<TH>Parent</TH>", "\t<TH>Name</TH>", "\t<TH>Relationship</TH>");
        writeParent("Father", m_run.tree.husband(family), childcolumn::relationToFather);
        writeParent("Mother", m_run.tree.wife(family), childcolumn::relationToMother);
        line("</TABLE>");
    }

    void writeParent(std::string_view word, TreePosition parent, std::size_t relation)
    {
        line("<TR>");
        cell(word);
        if (parent == nowhere) {
            cell(unknownCell);
        } else {
            page().append("\t<TD>");
            appendPersonLink(parent);
            line("</TD>");
        }
        const bool hidden = (parent != nowhere && !m_run.mayBeNamed(parent)) || isPrivateRelation(relation);
        const auto value = m_run.texts.childInFamily(m_run.tree.parentFamily(m_person), m_person, relation);
        cell(hidden || value.value_or("").empty() ? std::string(nothing) : TextCell(*value));
        line("</TR>");
    }

    /// Whether the setup has the relation to a parent as an item that must not be shown of this person.
    bool isPrivateRelation(std::size_t relation) const
    {
        const auto& items = m_run.texts.items();
        return std::any_of(items.begin(), items.end(), [this, relation](const PublishedItem& item) {
            return item.table == ItemTable::ChildInFamily && item.value == relation && !m_run.mayShow(item, m_person);
        });
    }
};

} // namespace

std::string PersonalPageTop(const ApplicationFolder& application)
{
    return FillTemplate(ReadTemplate(application.file(QStringLiteral("html/perspagetop.html"))), {});
}

void WritePersonalPage(const SiteRun& run, const std::string& top, PageFile& file, TreePosition person)
{
    file.begin(*run.pages, PersonalPageName(run.tree.individualId(person)));
    file.bytes().append(top);
    PersonalPage(run, file, person).write();
    WritePartnerships(run, file, person);
    WriteContactInfo(run, file, person);
    file.end();
}

} // namespace stemwright
