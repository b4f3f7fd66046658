// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "web/people/partnerships.h"

#include "web/html/celltexts.h"
#include "web/people/personpart.h"

namespace stemwright
{

namespace
{

class Partnerships : PersonPart
{
public:
    using PersonPart::PersonPart;

    void write()
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

private:
    /// The table of a family's status facts or of its events.
    void writeFamilyItems(TreePosition family, TreePosition partner, ItemKind kind)
    {
        bool open = false;
        for (const PublishedItem& item : m_run.texts.items()) {
            if (item.table != ItemTable::Family || item.kind != kind || !m_run.mayShow(item, m_person, partner)) {
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
                writeEvent(item, value, place);
            } else {
                writeRow(item, nothing, TextCell(value));
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
};

} // namespace

void WritePartnerships(const SiteRun& run, PageFile& file, TreePosition person)
{
    Partnerships(run, file, person).write();
}

} // namespace stemwright
