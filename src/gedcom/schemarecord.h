// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/record.h"

#include <optional>

namespace stemwright
{

/// The file's own declaration of its custom facts: a _SCHEMA record, or, as the programs that know it write it, the
/// _SCHEMA line below HEAD with everything one level deeper. The rest of HEAD is passed over.
class SchemaRecord : public ImportRecord
{
public:
    SchemaRecord(CustomFacts& individualFacts, CustomFacts& familyFacts, ColumnText& text);

    void begin(const GedcomLine& line) override;
    void take(const GedcomLine& line) override;
    RowResult finish() override;

private:
    void declareOpenFact();

    CustomFacts& m_individualFacts;
    CustomFacts& m_familyFacts;
    ColumnText& m_text;
    /// The level of the _SCHEMA line; none outside of one.
    std::optional<char> m_schemaLevel;
    /// Whose facts are being declared; null outside of INDI and FAM.
    CustomFacts* m_facts = nullptr;
    /// The fact being declared; an empty stem when there is none.
    std::string m_stem;
    std::string m_label;
    qint64 m_line = 0;
};

} // namespace stemwright
