// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/familyrecord.h"

namespace stemwright
{

namespace
{

// The labels are what earlier releases wrote, the first one's spelling included: site setups refer to them.
constexpr std::string_view beginningLabel = "Partnersip Beginning Status";
constexpr std::string_view endingLabel = "Partnership Ending Status";

constexpr std::string_view partners = "Partners";

/// Where `wanted` stands in `text`, without regard to case; npos when it does not.
std::size_t Find(std::string_view text, std::string_view wanted)
{
    for (std::size_t position = 0; position + wanted.size() <= text.size(); ++position) {
        if (StartsWith(text.substr(position), wanted)) {
            return position;
        }
    }
    return std::string_view::npos;
}

bool IsLetter(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') || byte >= 0x80;
}

bool HasWord(std::string_view text, std::string_view word)
{
    const std::size_t position = Find(text, word);
    if (position == std::string_view::npos) {
        return false;
    }
    const std::size_t end = position + word.size();
    const bool isWhole =
        (position == 0 || !IsLetter(text[position - 1])) && (end == text.size() || !IsLetter(text[end]));
    return isWhole || HasWord(text.substr(end), word);
}

} // namespace

std::string_view PartnershipStatus(std::string_view type)
{
    const std::size_t begin = Find(type, "Begin");
    if (begin == std::string_view::npos) {
        const bool isCode = type.find('_') != std::string_view::npos;
        return !HasWord(type, partners) ? std::string_view() : isCode ? partners : type;
    }
    const std::string_view before = type.substr(0, begin);
    const std::size_t last = before.find_last_not_of(" \t-:,;/(");
    return last == std::string_view::npos ? type : before.substr(0, last + 1);
}

FamilyRecord::FamilyRecord(RowWriter& row, RowWriter& childLinks, CustomFacts& facts, ColumnText& text)
    : RowRecord(row, facts, text), m_columns{row.column(u"HusbandId"), row.column(u"WifeId"),
                                             row.column(u"Marriage_Status"), row.column(u"_MSTAT"),
                                             row.column(u"_MEND")},
      m_marriage{"Marriage", {}, {}, row.column(u"Marriage_Date"), row.column(u"Marriage_Place")},
      m_childLinks(childLinks), m_linkColumns{childLinks.column(u"FamId"), childLinks.column(u"ChildId"),
                                              childLinks.column(u"_FREL"), childLinks.column(u"_MREL")}
{
}

void FamilyRecord::begin(const GedcomLine& line)
{
    RowRecord::begin(line);
    m_children.clear();
    m_inChild = false;
}

void FamilyRecord::takeField(const GedcomLine& line)
{
    m_inChild = false;
    switch (PackTag(line.Tag)) {
    case PackTag("HUSB"):
        setNumber(m_columns.husband, line);
        return;
    case PackTag("WIFE"):
        setNumber(m_columns.wife, line);
        return;
    case PackTag("CHIL"):
        m_children.push_back({XrefToNumber(line.Value), {}, {}});
        m_inChild = true;
        return;
    case PackTag("_MSTAT"):
        setField(m_columns.beginning, line);
        return;
    case PackTag("_MEND"):
        setField(m_columns.ending, line);
        return;
    case PackTag("DIV"):
        m_notDivorced = SameText(line.Value, "N");
        openEvent(line);
        return;
    case PackTag("MARR"):
    case PackTag("EVEN"):
        openEvent(line);
        return;
    default:
        if (IsCustomFactTag(line.Tag)) {
            openEvent(line);
        } else {
            passOver(line);
        }
    }
}

void FamilyRecord::takeDetail(const GedcomLine& line)
{
    if (m_inChild && SameText(line.Tag, "_FREL")) {
        setRelation(m_children.back().fatherRelation, line);
    } else if (m_inChild && SameText(line.Tag, "_MREL")) {
        setRelation(m_children.back().motherRelation, line);
    } else {
        passOver(line);
    }
}

void FamilyRecord::setRelation(std::string& relation, const GedcomLine& line)
{
    if (relation.empty()) {
        relation = text().fit(line.Value, line.Tag, line.number);
    } else {
        text().report().note(Loss::RepeatedValue, line.number, line.Tag);
    }
}

void FamilyRecord::storeEvent()
{
    if (SameText(fieldTag(), "MARR")) {
        storeMarriage();
    } else if (SameText(fieldTag(), "DIV")) {
        storeDivorce();
    } else if (SameText(fieldTag(), "EVEN")) {
        storeOtherEvent();
    } else {
        setCustomFact();
    }
}

void FamilyRecord::storeMarriage()
{
    setEvent(m_marriage);
    if (!row().isFilled(m_columns.marriageStatus)) {
        setContinued(m_columns.marriageStatus, event().status, "STAT");
    } else if (event().status.hasContent()) {
        text().report().note(Loss::RepeatedValue, event().status.line(), "STAT");
    }
}

void FamilyRecord::storeDivorce()
{
    if (m_notDivorced) {
        passOverEvent();
    } else {
        setEventAs(facts().forLabel(endingLabel), withPlace("Divorced"));
    }
}

void FamilyRecord::storeOtherEvent()
{
    const std::string type(text().fit(event().type.bytes(), "TYPE", event().type.line()));
    const std::string_view status = PartnershipStatus(type);
    if (!status.empty()) {
        setEventAs(facts().forLabel(beginningLabel), withPlace(status));
        return;
    }
    if (type.empty() || !event().hasContent()) {
        passOverEvent();
    } else if (mayAdd(type)) {
        setEvent(facts().forLabel(type));
    } else {
        text().report().note(Loss::NoColumnLeft, event().type.line(), type);
    }
}

/// Whether an event of a TYPE of its own has columns, with those of the two partnership facts kept free for them.
bool FamilyRecord::mayAdd(std::string_view label)
{
    if (facts().findLabel(label) != nullptr) {
        return true;
    }
    const int reserved =
        (facts().findLabel(beginningLabel) == nullptr ? 1 : 0) + (facts().findLabel(endingLabel) == nullptr ? 1 : 0);
    return facts().slotsLeft() > reserved;
}

std::string FamilyRecord::withPlace(std::string_view status)
{
    std::string value(status);
    if (event().place.hasContent()) {
        value.append(", in ").append(text().decode(event().place.bytes()));
    }
    return value;
}

RowResult FamilyRecord::finish()
{
    closeEvent();
    const int partners = int{row().isFilled(m_columns.husband)} + int{row().isFilled(m_columns.wife)};
    if (row().write() == RowResult::KeyExists) {
        return RowResult::KeyExists;
    }
    ++text().report().families;
    text().report().partners += partners;
    for (const Child& child : m_children) {
        m_childLinks.setInteger(m_linkColumns.family, id());
        m_childLinks.setInteger(m_linkColumns.child, child.id);
        if (!child.fatherRelation.empty()) {
            m_childLinks.setText(m_linkColumns.fatherRelation, child.fatherRelation);
        }
        if (!child.motherRelation.empty()) {
            m_childLinks.setText(m_linkColumns.motherRelation, child.motherRelation);
        }
        m_childLinks.write();
        ++text().report().childLinks;
    }
    return RowResult::Written;
}

} // namespace stemwright
