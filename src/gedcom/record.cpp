// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/record.h"

#include "base/error.h"
#include "gedcom/messages.h"

namespace stemwright
{

void EventLines::clear()
{
    date.clear();
    place.clear();
    type.clear();
    status.clear();
}

RowRecord::RowRecord(RowWriter& row, CustomFacts& facts, ColumnText& text) : m_row(row), m_facts(facts), m_text(text) {}

void RowRecord::begin(const GedcomLine& line)
{
    m_id = line.XrefId;
    m_row.setInteger(m_row.column(u"Id"), m_id);
    m_fieldTag.assign(line.Tag);
    m_passedLevel = nothingPassed;
    m_eventOpen = false;
    m_continued = nullptr;
}

void RowRecord::take(const GedcomLine& line)
{
    if (line.Level == '\0') {
        return;
    }
    if (m_continued != nullptr && (SameText(line.Tag, "CONT") || SameText(line.Tag, "CONC"))) {
        m_continued->continueWith(line);
        return;
    }
    m_continued = nullptr;
    if (line.Level < '0' || line.Level > '9') {
        m_text.report().noteWithoutPlace(line.number, "no level");
        return;
    }
    if (line.Level <= m_passedLevel) {
        m_passedLevel = nothingPassed;
    }
    if (line.Level == '1') {
        closeEvent();
        m_fieldTag.assign(line.Tag);
        m_fieldLine = line.number;
        takeField(line);
    } else if (line.Level > '2' || m_passedLevel == '1') {
        passOver(line);
    } else {
        m_detailTag.assign(line.Tag);
        m_eventOpen ? takeEventLine(line) : takeDetail(line);
    }
}

void RowRecord::passOver(const GedcomLine& line)
{
    m_passedLevel = std::min(m_passedLevel, line.Level);
    if (line.Value.empty()) {
        return;
    }
    if (m_passedLevel == '1') {
        notePassedOver(line.number, {});
    } else if (m_passedLevel == '2') {
        notePassedOver(line.number, {m_detailTag});
    } else {
        notePassedOver(line.number, {m_detailTag, line.Tag});
    }
}

/// Notes a line by the tags with which it stands below the last one of level 1.
void RowRecord::notePassedOver(qint64 line, std::initializer_list<std::string_view> tags)
{
    m_passedTags.assign(m_fieldTag);
    for (const std::string_view tag : tags) {
        m_passedTags.append(1, ' ').append(tag);
    }
    m_text.report().noteWithoutPlace(line, m_passedTags);
}

void RowRecord::passOverEvent()
{
    for (const auto& [value, tag] :
         {std::pair(&m_event.type, "TYPE"), std::pair(&m_event.date, "DATE"), std::pair(&m_event.place, "PLAC")}) {
        if (value->hasContent()) {
            notePassedOver(value->line(), {tag});
        }
    }
}

void RowRecord::takeEventLine(const GedcomLine& line)
{
    switch (PackTag(line.Tag)) {
    case PackTag("DATE"):
        takeOnce(m_event.date, line);
        break;
    case PackTag("PLAC"):
        takeLines(m_event.place, line);
        break;
    case PackTag("TYPE"):
        SameText(m_fieldTag, "EVEN") ? takeOnce(m_event.type, line) : passOver(line);
        break;
    case PackTag("STAT"):
        SameText(m_fieldTag, "MARR") ? takeOnce(m_event.status, line) : passOver(line);
        break;
    default:
        passOver(line);
    }
}

void RowRecord::takeOnce(ContinuedText& value, const GedcomLine& line)
{
    if (value.hasContent()) {
        m_text.report().note(Loss::RepeatedValue, line.number, line.Tag);
    } else {
        value.start(line);
    }
}

void RowRecord::takeLines(ContinuedText& value, const GedcomLine& line)
{
    if (!value.hasContent()) {
        m_continued = &value;
    }
    takeOnce(value, line);
}

void RowRecord::openEvent(const GedcomLine& line)
{
    m_eventOpen = true;
    m_eventOnlyAsserted = SameText(line.Value, "Y");
    if (!line.Value.empty() && !m_eventOnlyAsserted) {
        notePassedOver(line.number, {});
    }
}

void RowRecord::closeEvent()
{
    if (!m_eventOpen) {
        return;
    }
    m_eventOpen = false;
    storeEvent();
    if (m_eventOnlyAsserted && !m_event.hasContent()) {
        notePassedOver(m_fieldLine, {});
    }
    m_event.clear();
}

void RowRecord::setField(int column, const GedcomLine& line)
{
    if (m_row.isFilled(column)) {
        m_text.report().note(Loss::RepeatedValue, line.number, line.Tag);
        return;
    }
    m_row.setText(column, m_text.fit(line.Value, line.Tag, line.number));
}

void RowRecord::setNumber(int column, const GedcomLine& line)
{
    if (m_row.isFilled(column)) {
        m_text.report().note(Loss::RepeatedValue, line.number, line.Tag);
        return;
    }
    m_row.setInteger(column, XrefToNumber(line.Value));
}

void RowRecord::setContinued(int column, ContinuedText& value, std::string_view tag)
{
    if (value.isSet()) {
        m_row.setText(column, m_text.fit(value.bytes(), tag, value.line()));
    }
}

void RowRecord::setEvent(const CustomFact& fact)
{
    if (m_event.hasContent() && claimColumns(fact)) {
        setContinued(fact.dateColumn, m_event.date, "DATE");
        setContinued(fact.placeColumn, m_event.place, "PLAC");
    }
}

void RowRecord::setEventAs(const CustomFact& fact, std::string_view placeText)
{
    m_eventOnlyAsserted = false;
    if (claimColumns(fact)) {
        m_row.setText(fact.placeColumn, m_text.cut(placeText, m_fieldTag, m_fieldLine));
        setContinued(fact.dateColumn, m_event.date, "DATE");
    }
}

void RowRecord::setCustomFact()
{
    if (m_event.hasContent()) {
        setEvent(m_facts.forStem(m_fieldTag));
    }
}

/// Whether the columns of a stem are free for the open event. Date and place of two events are never mixed: an event
/// that comes when another one has filled one of the columns is left out whole.
bool RowRecord::claimColumns(const CustomFact& fact)
{
    if (fact.dateColumn == 0 || fact.placeColumn == 0) {
        throw Error(gedcommessages::NoColumnsFor(QString::fromStdString(fact.stem), QString::fromStdString(fact.label),
                                                 m_fieldLine));
    }
    if (m_row.isFilled(fact.dateColumn) || m_row.isFilled(fact.placeColumn)) {
        m_text.report().note(Loss::RepeatedValue, m_fieldLine, m_fieldTag);
        return false;
    }
    return true;
}

} // namespace stemwright
