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
    if (line.Level == '1') {
        closeEvent();
        m_eventTag.assign(line.Tag);
        m_eventLine = line.number;
        takeField(line);
    } else if (line.Level == '2' && m_eventOpen) {
        takeEventLine(line);
    } else if (line.Level == '2') {
        takeDetail(line);
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
        takeOnce(m_event.type, line);
        break;
    case PackTag("STAT"):
        takeOnce(m_event.status, line);
        break;
    default:
        break;
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

void RowRecord::closeEvent()
{
    if (m_eventOpen) {
        m_eventOpen = false;
        storeEvent();
        m_event.clear();
    }
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

void RowRecord::setContinued(int column, const ContinuedText& value, std::string_view tag)
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
    if (claimColumns(fact)) {
        m_row.setText(fact.placeColumn, m_text.cut(placeText, m_eventTag, m_eventLine));
        setContinued(fact.dateColumn, m_event.date, "DATE");
    }
}

void RowRecord::setCustomFact()
{
    if (m_event.hasContent()) {
        setEvent(m_facts.forStem(m_eventTag));
    }
}

/// Whether the columns of a stem are free for the open event. Date and place of two events are never mixed: an event
/// that comes when another one has filled one of the columns is left out whole.
bool RowRecord::claimColumns(const CustomFact& fact)
{
    if (fact.dateColumn == 0 || fact.placeColumn == 0) {
        throw Error(gedcommessages::NoColumnsFor(QString::fromStdString(fact.stem), QString::fromStdString(fact.label),
                                                 m_eventLine));
    }
    if (m_row.isFilled(fact.dateColumn) || m_row.isFilled(fact.placeColumn)) {
        m_text.report().note(Loss::RepeatedValue, m_eventLine, m_eventTag);
        return false;
    }
    return true;
}

} // namespace stemwright
