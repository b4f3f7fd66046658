// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/importreport.h"
#include "gedcom/record.h"

namespace stemwright
{

/// A record of a kind that a family file has no place for, such as a note or a source: its lines are only counted.
class PassedRecord : public ImportRecord
{
public:
    explicit PassedRecord(ImportReport& report) : m_report(report) {}

    /// `line` may have its tag behind an identifier that is no number.
    void begin(const GedcomLine& line) override
    {
        const bool tagBehind = line.hasXref && line.XrefId < 0;
        const std::size_t end = std::min(line.Value.find_first_of(" \t"), line.Value.size());
        m_tag.assign(tagBehind ? line.Value.substr(0, end) : line.Tag);
        note(line.number, tagBehind ? line.Value.substr(end) : line.Value);
    }

    void take(const GedcomLine& line) override { note(line.number, line.Value); }

    RowResult finish() override { return RowResult::Written; }

private:
    void note(qint64 line, std::string_view text)
    {
        if (!text.empty()) {
            m_report.noteWithoutPlace(line, m_tag);
        }
    }

    ImportReport& m_report;
    std::string m_tag;
};

} // namespace stemwright
