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
    /// A line of level 1, and one of level 2 that is no event's. passOver() takes those that have no place.
    virtual void takeField(const GedcomLine& line) = 0;
    virtual void takeDetail(const GedcomLine& line) = 0;
    /// The event that openEvent() began has ended: stores it, or passes it over.
    virtual void storeEvent() = 0;

    int id() const { return m_id; }

    RowWriter& row() { return m_row; }

    CustomFacts& facts() { return m_facts; }

    ColumnText& text() { return m_text; }

    EventLines& event() { return m_event; }

    /// Begins an event with its line of level 1, whose own text has no place.
    void openEvent(const GedcomLine& line);

    /// The tag of the last line of level 1, which is that of the open event.
    const std::string& fieldTag() const { return m_fieldTag; }

    /// Reports a line for which there is no place, if it holds any text. All lines below it go with it.
    void passOver(const GedcomLine& line);
    /// Reports what the open event holds.
    void passOverEvent();

    void closeEvent();

    /// Sets a value of which only the first is kept.
    void takeOnce(ContinuedText& value, const GedcomLine& line);
    /// The same for a value that the following CONT and CONC lines continue.
    void takeLines(ContinuedText& value, const GedcomLine& line);

    void setField(int column, const GedcomLine& line);
    void setNumber(int column, const GedcomLine& line);
    /// Sets a column to a value that may have been continued.
    void setContinued(int column, ContinuedText& value, std::string_view tag);

    /// Puts the open event's date and place into the columns of a stem. Throws Error when the table has none.
    void setEvent(const CustomFact& fact);
    /// Puts the open event's date, and `placeText` (UTF-8), into the columns of a stem, likewise.
    void setEventAs(const CustomFact& fact, std::string_view placeText);
    /// Puts the open event's date and place into the columns that its own tag names, such as _FA3.
    void setCustomFact();

private:
    static constexpr char nothingPassed = '9' + 1;

    void takeEventLine(const GedcomLine& line);
    void notePassedOver(qint64 line, std::initializer_list<std::string_view> tags);
    bool claimColumns(const CustomFact& fact);

    RowWriter& m_row;
    CustomFacts& m_facts;
    ColumnText& m_text;
    int m_id = 0;
    EventLines m_event;
    std::string m_fieldTag;
    qint64 m_fieldLine = 0;
    /// The tag of the last line of level 2.
    std::string m_detailTag;
    /// The level of the line that was passed over with all that is below it.
    char m_passedLevel = nothingPassed;
    bool m_eventOpen = false;
    /// Whether nothing but a "Y" tells that the open event took place.
    bool m_eventOnlyAsserted = false;
    /// The tags of a line that is passed over.
    std::string m_passedTags;
    ContinuedText* m_continued = nullptr;
};

} // namespace stemwright
