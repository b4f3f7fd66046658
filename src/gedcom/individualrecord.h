// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/record.h"

namespace stemwright
{

/// An INDI record: one row of Indi, and a row of Spouse2Fam for each of its FAMS lines.
class IndividualRecord : public RowRecord
{
public:
    IndividualRecord(RowWriter& row, RowWriter& spouseLinks, CustomFacts& facts, ColumnText& text);

    void begin(const GedcomLine& line) override;
    /// Writes the rows; the links only when the individual's key is new.
    RowResult finish() override;

    /// Identifier and name of the record being read, for the message on a duplicate.
    int duplicateId() const { return id(); }

    QString surname();
    QString givenName();

protected:
    void takeField(const GedcomLine& line) override;

    void takeDetail(const GedcomLine& line) override;
    void storeEvent() override;

private:
    void takeName(const GedcomLine& line);
    bool stands(const GedcomLine& line);
    void storeTypedEvent();

    struct Columns {
        int surname, givenName, suffix, sex, alias, title, address, phone, familyOfParents;
    };

    Columns m_columns;
    CustomFact m_birth;
    CustomFact m_death;
    RowWriter& m_spouseLinks;
    int m_spouseColumn;
    int m_familyColumn;
    ContinuedText m_address;
    std::vector<int> m_families;
};

} // namespace stemwright
