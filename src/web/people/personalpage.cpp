// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/people/personalpage.h"

#include "web/html/celltexts.h"
#include "web/html/escape.h"
#include "web/html/templates.h"
#include "web/links/contactlinks.h"
#include "web/links/picturelinks.h"
#include "web/links/treelinks.h"
#include "web/run/ancestorchain.h"

namespace stemwright
{

namespace
{

constexpr std::string_view rule = "<HR COLOR=\"BLACK\">";
constexpr std::string_view nothing = "&nbsp;";
constexpr std::string_view unknownCell = "&lt;Unknown&gt;";
constexpr std::string_view borderedTable = "<TABLE WIDTH=\"100%\" BORDER=\"1\" CELLPADDING = \"2\"  CELLSPACING=\"0\">";

class PersonalPage
{
public:
    PersonalPage(const SiteRun& run, PageFile& file, TreePosition person) : m_run(run), m_file(file), m_person(person)
    {
    }

    void write()
    {
        writeHeading();
        writeAncestors();
        writePersonalData();
        writeParents();
        writePartnerships();
        writeContact();
    }

private:
    std::string& page() { return m_file.bytes(); }

    void line(std::string_view bytes) { m_file.line(bytes); }

    void cell(std::string_view content) { page().append("\t<TD>").append(content).append("</TD>\r\n"); }

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

    /// How the page names another person: with links where that person has a page of his own, without a name where he
    /// or she must not be named.
    void appendPersonLink(TreePosition person)
    {
        page().push_back(' ');
        if (!m_run.mayBeNamed(person)) {
            AppendText(page(), privatePerson);
            return;
        }
        if (!m_run.isOnSite(person)) {
            page().append(m_run.names.displayHtml(person));
            return;
        }
        page().append("<A HREF=\"");
        AppendPersonalPageName(page(), m_run.tree.individualId(person));
        page().append("\">").append(m_run.names.displayHtml(person));
        page().append("</A>&nbsp;");
        AppendTreeLinks(page(), m_run, person);
        AppendInfoLinks(page(), m_run, person);
    }

    void beginTable(std::string_view first, std::string_view second, std::string_view third)
    {
        line(borderedTable);
        line("<TR>");
        line(first);
        line(second);
        line(third);
        line("</TR>");
    }

    void writePersonalData()
    {
        bool open = false;
        for (const PublishedItem& item : m_run.texts.items()) {
            if (item.kind != ItemKind::Event || item.table != ItemTable::Individual ||
                (item.isPrivate && m_run.privacy.isProtected(m_person))) {
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
            writeRow(item, date.empty() ? std::string(nothing) : DateCell(date),
                     place.empty() ? std::string(nothing) : TextCell(place));
        }
        if (open) {
            line("</TABLE>");
        }
    }

    void writeRow(const PublishedItem& item, const std::string& date, const std::string& place)
    {
        line("<TR>");
        cell(TextCell(item.name));
        cell(date);
        cell(place);
        line("</TR>");
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

    /// Whether the setup marks the relation to a parent private and this person is protected.
    bool isPrivateRelation(std::size_t relation) const
    {
        const auto& items = m_run.texts.items();
        return m_run.privacy.isProtected(m_person) &&
               std::any_of(items.begin(), items.end(), [relation](const PublishedItem& item) {
                   return item.table == ItemTable::ChildInFamily && item.value == relation && item.isPrivate;
               });
    }

    void writePartnerships()
    {
        int number = 0;
        for (const TreePosition family : m_run.tree.spouseFamilies(m_person)) {
            if (!m_run.tree.hasRecord(family)) {
                continue;
            }
            if (++number == 1) {
                line("<BR><B>Partnerships:</B>");
                line(rule);
            }
            const TreePosition partner = m_run.tree.partner(family, m_person);
            page().append("<BR><I>").append(std::to_string(number)).append(". ");
            if (partner == nowhere) {
                page().append(" ").append(unknownCell);
            } else {
                appendPersonLink(partner);
            }
            line("</I>");
            if (partner == nowhere || m_run.mayBeNamed(partner)) {
                writeFamilyItems(family, partner, ItemKind::Relationship);
                writeFamilyItems(family, partner, ItemKind::Event);
            }
            writeChildren(family);
        }
    }

    /// The table of a family's status facts or of its events.
    void writeFamilyItems(TreePosition family, TreePosition partner, ItemKind kind)
    {
        const bool isProtected =
            m_run.privacy.isProtected(m_person) || (partner != nowhere && m_run.privacy.isProtected(partner));
        bool open = false;
        for (const PublishedItem& item : m_run.texts.items()) {
            if (item.table != ItemTable::Family || item.kind != kind || (item.isPrivate && isProtected)) {
                continue;
            }
            const auto value = m_run.texts.family(family, item.value).value_or("");
            const auto place =
                kind == ItemKind::Event ? m_run.texts.family(family, item.place).value_or("") : std::string_view();
            if (value.empty() && place.empty()) {
                continue;
            }
            if (!open) {
                beginFamilyTable(kind);
                open = true;
            }
            if (kind == ItemKind::Event) {
                writeRow(item, value.empty() ? std::string(nothing) : DateCell(value),
                         place.empty() ? std::string(nothing) : TextCell(place));
            } else {
                writeRow(item, std::string(nothing), TextCell(value));
            }
        }
        if (open) {
            line("</TABLE>");
        }
    }

    void beginFamilyTable(ItemKind kind)
    {
        if (kind == ItemKind::Event) {
            beginTable("\t<TH WIDTH=\"20%\">Event/Description</TH>", "\t<TH WIDTH=\"20%\">Date</TH>",
                       "\t<TH>Place/Status</TH>");
        } else {
            beginTable("\t<TH>Item</TH>", "\t<TH>Date</TH>", "\t<TH>Place/Status</TH>");
        }
    }

    void writeChildren(TreePosition family)
    {
        bool open = false;
        for (const TreePosition child : m_run.tree.childrenByParents(family)) {
            if (!m_run.mayBeNamed(child)) {
                continue;
            }
            if (!open) {
                line("<TABLE WIDTH=\"100%\" CELLPADDING=\"2\" CELLSPACING=\"0\">");
                open = true;
            }
            line("<TR>");
            line("\t<TD WIDTH=\"10%\"></TD>");
            const bool isSon = m_run.texts.individual(child, individualcolumn::sex).value_or("") == "M";
            line(isSon ? "\t<TD WIDTH=\"10%\">Son:</TD>" : "\t<TD WIDTH=\"10%\">Daughter:</TD>");
            page().append("\t<TD WIDTH=\"35%\">");
            appendPersonLink(child);
            line("</TD>");
            writeBirth(child);
            line("</TR>");
        }
        if (open) {
            line("</TABLE>");
        }
    }

    void writeBirth(TreePosition child)
    {
        const auto birth = m_run.texts.individual(child, individualcolumn::birthDate).value_or("");
        const bool shown = !birth.empty() && !m_run.privacy.isProtected(child);
        cell(shown ? "Born:" + DateCell(birth) : std::string(nothing));
    }

    void writeContact()
    {
        const std::optional<Contact> contact = PublishedContact(m_run, m_person);
        if (!contact || (contact->email1.empty() && contact->email2.empty() && contact->webPage.empty())) {
            return;
        }
        line("<BR><B>Contact Info:</B>");
        line(rule);
        line("<TABLE WIDTH=\"80%\" CELLPADDING=\"2\" CELLSPACING=\"0\">");
        for (const std::string_view address : {contact->email1, contact->email2}) {
            if (!address.empty()) {
                std::string link("<A HREF=\"mailto:");
                AppendMailAddress(link, address);
                link.append("\">");
                AppendText(link, address);
                writeContactRow("Email address:", link);
            }
        }
        if (!contact->webPage.empty()) {
            std::string link("<A HREF=\"");
            AppendWebAddress(link, contact->webPage);
            link.append("\" TARGET=\"_blank\">").append(NamesWebScheme(contact->webPage) ? "" : "http://");
            AppendText(link, contact->webPage);
            writeContactRow("Web address:", link);
        }
        line("</TABLE>");
    }

    void writeContactRow(std::string_view caption, const std::string& link)
    {
        line("<TR>");
        cell(caption);
        cell(link + "</A>");
        line("</TR>");
    }

    const SiteRun& m_run;
    PageFile& m_file;
    TreePosition m_person;
};

} // namespace

std::string PersonalPageTop(const ApplicationFolder& application)
{
    return FillTemplate(ReadTemplate(application.file(QStringLiteral("html/perspagetop.html"))), {});
}

void WritePersonalPage(const SiteRun& run, const std::string& top, PageFile& file, TreePosition person)
{
    file.begin(run.file(PersonalPageName(run.tree.individualId(person))));
    file.bytes().append(top);
    PersonalPage(run, file, person).write();
    file.end();
}

} // namespace stemwright
