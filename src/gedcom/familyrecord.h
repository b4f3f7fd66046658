// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "gedcom/record.h"

namespace stemwright
{

/// A FAM record: one row of Fam, and a row of Fam2Child for each of its CHIL lines. How a couple's partnership began
/// and ended is kept as two family facts; events of any other TYPE become family facts with that label while columns
/// last.
class FamilyRecord : public RowRecord
{
public:
    FamilyRecord(RowWriter& row, RowWriter& childLinks, CustomFacts& facts, ColumnText& text);

    void begin(const GedcomLine& line) override;
    /// Writes the rows; the links only when the family's key is new.
    RowResult finish() override;

    int duplicateId() const { return id(); }

protected:
    void takeField(const GedcomLine& line) override;
    void takeDetail(const GedcomLine& line) override;
    void storeEvent() override;

private:
    void storeMarriage();
    void storeDivorce();
    void storeOtherEvent();
    bool mayAdd(std::string_view label);
    std::string withPlace(std::string_view status);
    void setRelation(std::string& relation, const GedcomLine& line);

    struct Columns {
        int husband, wife, marriageStatus, beginning, ending;
    };

    struct LinkColumns {
        int family, child, fatherRelation, motherRelation;
    };

    struct Child {
        int id;
        std::string fatherRelation;
        std::string motherRelation;
    };

    Columns m_columns;
    CustomFact m_marriage;
    RowWriter& m_childLinks;
    LinkColumns m_linkColumns;
    std::vector<Child> m_children;
    /// Whether lines of level 2 belong to the last child.
    bool m_inChild = false;
    /// Whether the open DIV says that there was none ("N").
    bool m_notDivorced = false;
};

/// The status that the TYPE of a family event tells of a partnership: the text before "Begin" where there is one, else
/// the whole TYPE, or only "Partners" where the TYPE is a program's code with underscores in it. Empty when the TYPE
/// holds neither "Begin" nor the word "Partners"; case does not count.
std::string_view PartnershipStatus(std::string_view type);

} // namespace stemwright
