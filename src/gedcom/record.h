// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/columntext.h"
#include "gedcom/customfacts.h"
#include "gedcom/rowwriter.h"

/// What the records of a GEDCOM file share on their way into tables: they take one line after the other and are written
/// when they end. A record that fails throws Error or the engine's exception. Stands on the row writer and the reader.
namespace stemwright
{

class ImportRecord
{
public:
    ImportRecord() = default;
    ImportRecord(const ImportRecord&) = delete;
    ImportRecord& operator=(const ImportRecord&) = delete;
    virtual ~ImportRecord() = default;

    /// Takes the record's first line, of level 0.
    virtual void begin(const GedcomLine& line) = 0;
    /// Takes any other line of the record.
    virtual void take(const GedcomLine& line) = 0;
    /// The record has ended: writes its rows.
    virtual RowResult finish() = 0;
};

/// The lines below an event that the importer knows.
struct EventLines {
    ContinuedText date;
    ContinuedText place;
    ContinuedText type;
    ContinuedText status;

    bool hasContent() const { return date.hasContent() || place.hasContent(); }

    void clear();
};

/// A record that becomes one row: an individual or a family. It tells lines that continue a value from others, collects
/// events, and sets columns so that the first of several values for a column is kept and the others are reported.
class RowRecord : public ImportRecord
{
public:
    RowRecord(RowWriter& row, CustomFacts& facts, ColumnText& text);

    void begin(const GedcomLine& line) override;
    void take(const GedcomLine& line) final;

protected:
    /// A line of level 1, and one of level 2 that is no event's.
    virtual void takeField(const GedcomLine& line) = 0;
    virtual void takeDetail(const GedcomLine& line) = 0;
    /// The event that openEvent() began has ended.
    virtual void storeEvent() = 0;

    int id() const { return m_id; }

    RowWriter& row() { return m_row; }

    CustomFacts& facts() { return m_facts; }

    ColumnText& text() { return m_text; }

    EventLines& event() { return m_event; }

    void openEvent() { m_eventOpen = true; }

    /// The tag of the event that is open.
    const std::string& eventTag() const { return m_eventTag; }

    void closeEvent();

    /// Sets a value of which only the first is kept.
    void takeOnce(ContinuedText& value, const GedcomLine& line);
    /// The same for a value that the following CONT and CONC lines continue.
    void takeLines(ContinuedText& value, const GedcomLine& line);

    void setField(int column, const GedcomLine& line);
    void setNumber(int column, const GedcomLine& line);
    /// Sets a column to a value that may have been continued.
    void setContinued(int column, const ContinuedText& value, std::string_view tag);

    /// Puts the open event's date and place into the columns of a stem. Throws Error when the table has none.
    void setEvent(const CustomFact& fact);
    /// Puts the open event's date, and `placeText` (UTF-8), into the columns of a stem, likewise.
    void setEventAs(const CustomFact& fact, std::string_view placeText);
    /// Puts the open event's date and place into the columns that its own tag names, such as _FA3.
    void setCustomFact();

private:
    void takeEventLine(const GedcomLine& line);
    bool claimColumns(const CustomFact& fact);

    RowWriter& m_row;
    CustomFacts& m_facts;
    ColumnText& m_text;
    int m_id = 0;
    EventLines m_event;
    std::string m_eventTag;
    qint64 m_eventLine = 0;
    bool m_eventOpen = false;
    ContinuedText* m_continued = nullptr;
};

} // namespace stemwright
