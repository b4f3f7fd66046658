// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/charset.h"
#include "gedcom/encoding.h"
#include "gedcom/importreport.h"
#include "gedcom/reader.h"

#include <string>
#include <string_view>

namespace stemwright
{

/// Makes the file's bytes fit for a text column: decodes them, and cuts what is longer than the column takes, which is
/// reported and never an error.
class ColumnText
{
public:
    ColumnText(const FileEncoding& encoding, ImportReport& report)
        : m_decoder(encoding.charset, encoding.name), m_report(report)
    {
    }

    /// UTF-8 of at most maxTextLength characters, valid until the next call. `tag` and `line` say in the report where
    /// the value stood.
    std::string_view fit(std::string_view bytes, std::string_view tag, qint64 line)
    {
        return cut(m_decoder.decode(bytes), tag, line);
    }

    /// UTF-8 of any length, valid until the next call.
    std::string_view decode(std::string_view bytes) { return m_decoder.decode(bytes); }

    /// The beginning of `utf8` that a column takes. The cut is made between two characters as readers see them: no
    /// letter loses its accent.
    std::string_view cut(std::string_view utf8, std::string_view tag, qint64 line);

    ImportReport& report() { return m_report; }

private:
    ValueDecoder m_decoder;
    ImportReport& m_report;
};

/// A value that CONT and CONC lines may continue, kept as bytes of the file until it is whole. CONT begins a new line
/// of the value; CONC goes on where the line before was split, with the blanks and the comma that the reader dropped
/// there.
class ContinuedText
{
public:
    void clear();
    void start(const GedcomLine& line);
    void continueWith(const GedcomLine& line);

    bool isSet() const { return m_isSet; }

    /// Whether it was set to more than an empty text.
    bool hasContent() const { return !m_bytes.empty(); }

    /// The number of the line where the value began.
    qint64 line() const { return m_line; }

    /// The whole value, in which runs of commas at the joints have shrunk like others. Valid until the next line.
    std::string_view bytes();

private:
    std::string m_bytes;
    std::string m_dropped;
    qint64 m_line = 0;
    bool m_isSet = false;
    /// Whether lines were joined since commas were collapsed last. Doing that with each of many lines takes too long.
    bool m_hasJoints = false;
};

} // namespace stemwright
