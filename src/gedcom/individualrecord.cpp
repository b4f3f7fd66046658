// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/individualrecord.h"

#include <array>

namespace stemwright
{

namespace
{

struct StandardEvent {
    std::string_view tag;
    std::string_view label;
};

/// The events that have no columns of their own and are kept as custom facts.
constexpr std::array<StandardEvent, 13> standardEvents = {{{"ADOP", "Adoption"},
                                                           {"BAPM", "Baptism"},
                                                           {"BARM", "Bar Mitzvah"},
                                                           {"BURI", "Burial"},
                                                           {"CHR", "Christening"},
                                                           {"CONF", "Confirmation"},
                                                           {"EDUC", "Education"},
                                                           {"EMIG", "Emigration"},
                                                           {"IMMI", "Immigration"},
                                                           {"MIGR", "Migration"},
                                                           {"NATU", "Naturalization"},
                                                           {"OCCU", "Occupation"},
                                                           {"RESI", "Residence"}}};

const StandardEvent* StandardEventOf(std::string_view tag)
{
    const auto* event = std::find_if(standardEvents.begin(), standardEvents.end(),
                                     [tag](const StandardEvent& candidate) { return SameText(candidate.tag, tag); });
    return event == standardEvents.end() ? nullptr : event;
}

} // namespace

IndividualRecord::IndividualRecord(RowWriter& row, RowWriter& spouseLinks, CustomFacts& facts, ColumnText& text)
    : RowRecord(row, facts, text), m_columns{row.column(u"Surname"), row.column(u"GivenName"), row.column(u"Suffix"),
                                             row.column(u"Sex"),     row.column(u"Alias"),     row.column(u"Title"),
                                             row.column(u"Address"), row.column(u"Phone"),     row.column(u"FAMC")},
      m_birth{"BIRT", {}, {}, row.column(u"BIRT_Date"), row.column(u"BIRT_Place")},
      m_death{"DEAT", {}, {}, row.column(u"DEAT_Date"), row.column(u"DEAT_Place")}, m_spouseLinks(spouseLinks),
      m_spouseColumn(spouseLinks.column(u"SpouseId")), m_familyColumn(spouseLinks.column(u"FamId"))
{
}

void IndividualRecord::begin(const GedcomLine& line)
{
    RowRecord::begin(line);
    m_address.clear();
    m_families.clear();
}

void IndividualRecord::takeField(const GedcomLine& line)
{
    switch (PackTag(line.Tag)) {
    case PackTag("NAME"):
        takeName(line);
        return;
    case PackTag("SEX"):
        setField(m_columns.sex, line);
        return;
    case PackTag("ALIA"):
    case PackTag("NICK"):
        setField(m_columns.alias, line);
        return;
    case PackTag("TITL"):
        setField(m_columns.title, line);
        return;
    case PackTag("PHON"):
        setField(m_columns.phone, line);
        return;
    case PackTag("ADDR"):
        takeLines(m_address, line);
        return;
    case PackTag("FAMS"):
        m_families.push_back(XrefToNumber(line.Value));
        return;
    case PackTag("FAMC"):
        setNumber(m_columns.familyOfParents, line);
        return;
    case PackTag("BIRT"):
    case PackTag("DEAT"):
    case PackTag("EVEN"):
        openEvent(line);
        return;
    default:
        break;
    }
    if (const StandardEvent* event = StandardEventOf(line.Tag)) {
        facts().forTag(event->tag, event->label);
        openEvent(line);
    } else if (IsCustomFactTag(line.Tag)) {
        openEvent(line);
    } else {
        passOver(line);
    }
}

void IndividualRecord::takeDetail(const GedcomLine& line)
{
    if (!stands(line)) {
        passOver(line);
    }
}

/// Whether a line only repeats a part of the name or the address that is kept, as many programs write it.
bool IndividualRecord::stands(const GedcomLine& line)
{
    if (SameText(fieldTag(), "ADDR")) {
        // Behind this many bytes no text reaches the column.
        return m_address.bytes().substr(0, 4 * maxTextLength).find(line.Value) != std::string_view::npos;
    }
    switch (SameText(fieldTag(), "NAME") ? PackTag(line.Tag) : 0) {
    case PackTag("NPFX"):
    case PackTag("GIVN"):
    case PackTag("SPFX"):
    case PackTag("SURN"):
    case PackTag("NSFX"): {
        const std::string_view part = text().decode(line.Value);
        return row().text(m_columns.givenName).find(part) != std::string_view::npos ||
               row().text(m_columns.surname).find(part) != std::string_view::npos ||
               row().text(m_columns.suffix).find(part) != std::string_view::npos;
    }
    default:
        return false;
    }
}

void IndividualRecord::takeName(const GedcomLine& line)
{
    if (row().isFilled(m_columns.givenName) || row().isFilled(m_columns.surname) || row().isFilled(m_columns.suffix)) {
        text().report().note(Loss::RepeatedValue, line.number, line.Tag);
        return;
    }
    const GedcomName name = SplitGedcomName(text().decode(line.Value));
    row().setText(m_columns.surname, text().cut(name.Surname, line.Tag, line.number));
    row().setText(m_columns.givenName, text().cut(name.GivenName, line.Tag, line.number));
    row().setText(m_columns.suffix, text().cut(name.Suffix, line.Tag, line.number));
}

void IndividualRecord::storeEvent()
{
    const std::string_view tag = fieldTag();
    if (SameText(tag, "BIRT")) {
        setEvent(m_birth);
    } else if (SameText(tag, "DEAT")) {
        setEvent(m_death);
    } else if (SameText(tag, "EVEN")) {
        storeTypedEvent();
    } else if (const StandardEvent* standard = StandardEventOf(tag)) {
        setEvent(facts().forTag(standard->tag, standard->label));
    } else {
        setCustomFact();
    }
}

void IndividualRecord::storeTypedEvent()
{
    ContinuedText& type = event().type;
    const bool hasType = type.hasContent();
    if (hasType) {
        setEvent(facts().forLabel(text().fit(type.bytes(), "TYPE", type.line())));
    }
    if (!hasType || !event().hasContent()) {
        passOverEvent();
    }
}

RowResult IndividualRecord::finish()
{
    closeEvent();
    setContinued(m_columns.address, m_address, "ADDR");
    if (row().write() == RowResult::KeyExists) {
        return RowResult::KeyExists;
    }
    ++text().report().individuals;
    for (const int family : m_families) {
        m_spouseLinks.setInteger(m_spouseColumn, id());
        m_spouseLinks.setInteger(m_familyColumn, family);
        m_spouseLinks.write();
        ++text().report().spouseLinks;
    }
    return RowResult::Written;
}

QString IndividualRecord::surname()
{
    return QString::fromUtf8(row().text(m_columns.surname));
}

QString IndividualRecord::givenName()
{
    return QString::fromUtf8(row().text(m_columns.givenName));
}

} // namespace stemwright
