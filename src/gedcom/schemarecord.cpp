// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "gedcom/schemarecord.h"

namespace stemwright
{

SchemaRecord::SchemaRecord(CustomFacts& individualFacts, CustomFacts& familyFacts, ColumnText& text)
    : m_individualFacts(individualFacts), m_familyFacts(familyFacts), m_text(text)
{
}

void SchemaRecord::begin(const GedcomLine& line)
{
    m_schemaLevel.reset();
    m_facts = nullptr;
    m_stem.clear();
    if (SameText(line.Tag, "_SCHEMA")) {
        m_schemaLevel = line.Level;
    }
}

void SchemaRecord::take(const GedcomLine& line)
{
    if (line.Level == '1' && m_schemaLevel != '0') {
        declareOpenFact();
        m_facts = nullptr;
        m_schemaLevel = SameText(line.Tag, "_SCHEMA") ? std::optional(line.Level) : std::nullopt;
        return;
    }
    if (!m_schemaLevel) {
        return;
    }
    const int depth = line.Level - *m_schemaLevel;
    if (depth == 1) {
        declareOpenFact();
        m_facts = SameText(line.Tag, "INDI")  ? &m_individualFacts
                  : SameText(line.Tag, "FAM") ? &m_familyFacts
                                              : nullptr;
    } else if (depth == 2) {
        declareOpenFact();
        if (m_facts != nullptr && StartsWith(line.Tag, "_FA")) {
            m_stem = m_text.fit(line.Tag, line.Tag, line.number);
            m_label.clear();
            m_line = line.number;
        }
    } else if (depth == 3 && SameText(line.Tag, "LABL") && m_label.empty()) {
        m_label = m_text.fit(line.Value, line.Tag, line.number);
    }
}

RowResult SchemaRecord::finish()
{
    declareOpenFact();
    return RowResult::Written;
}

void SchemaRecord::declareOpenFact()
{
    if (m_stem.empty()) {
        return;
    }
    const std::string_view tag = m_facts == &m_individualFacts ? StandardTagForLabel(m_label) : std::string_view();
    if (!m_facts->declare(m_stem, tag, m_label)) {
        m_text.report().note(Loss::RepeatedValue, m_line, m_stem);
    }
    m_stem.clear();
}

} // namespace stemwright
