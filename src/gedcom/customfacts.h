// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/rowwriter.h"

#include <QtCore/QString>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

/// The schema of custom facts of individuals or of families, in memory while the import runs: which event stands in
/// which column pair "_FAn_Date" and "_FAn_Place". Tags and labels are compared without regard to case. Stands on the
/// row writer.
namespace stemwright
{

struct CustomFact {
    /// For example "_FA3".
    std::string stem;
    /// The GEDCOM tag that the fact stands for; empty when there is none.
    std::string tag;
    std::string label;
    /// Column numbers in the table of the rows; 0 when the table has no columns for the stem.
    int dateColumn = 0;
    int placeColumn = 0;
};

class CustomFacts
{
public:
    /// `rows` is the writer of the table that has the columns; `slots` is how many pairs that has.
    CustomFacts(const RowWriter& rows, int slots) : m_rows(rows), m_slots(slots) {}

    /// Adds a fact that the file declares itself. False when its stem is declared already.
    bool declare(std::string_view stem, std::string_view tag, std::string_view label);

    /// The fact that stands for a tag, added with `label` when there is none.
    const CustomFact& forTag(std::string_view tag, std::string_view label);

    /// The fact with this label, added when there is none.
    const CustomFact& forLabel(std::string_view label);

    /// The fact with this label, or no fact.
    const CustomFact* findLabel(std::string_view label);

    /// The column pair of a stem that the file names itself. From now on no added fact takes it.
    const CustomFact& forStem(std::string_view stem);

    /// How many more facts can be added before the columns run out.
    int slotsLeft();

    const std::deque<CustomFact>& all() const { return m_facts; }

private:
    using Index = std::unordered_map<std::string, std::size_t>;

    const std::string& folded(std::string_view text);
    bool isTaken(int number);
    const CustomFact& add(std::string_view tag, std::string_view label);
    void append(CustomFact fact);
    CustomFact withColumns(std::string_view stem) const;

    const RowWriter& m_rows;
    int m_slots;
    /// The number of the last stem given or declared.
    int m_counter = 0;
    /// References to facts are handed out, so they must not move.
    std::deque<CustomFact> m_facts;
    Index m_byStem;
    Index m_byTag;
    Index m_byLabel;
    /// Stems that records use, declared or not.
    std::unordered_map<std::string, CustomFact> m_used;
    std::string m_folded;
};

} // namespace stemwright
