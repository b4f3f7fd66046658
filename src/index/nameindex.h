// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/pattern.h"
#include "base/sorting.h"
#include "index/byterows.h"
#include "index/fullname.h"
#include "index/texttable.h"

#include <QtCore/QString>

#include <span>

/// The index of all individuals by name, in memory and compact: what every list of persons shows and searches. It is
/// read once and does not follow later changes of the tree. Reading fails as the engine fails; the rest cannot fail.
/// Stands on the connection.
namespace stemwright
{

/// An individual in the index; it stays the same when the index is sorted. Numbered from 0 in the order of the ids.
using NameRow = std::uint32_t;

/// The columns of the person picker.
enum class NameColumn { PersonId, Name, BirthDate, DeathDate };

using NameSort = ColumnSort<NameColumn>;

class NameIndex
{
public:
    /// Reads all individuals, in the order of their surnames, given names and suffixes.
    static NameIndex load(Connection& connection, NameForm form = NameForm::Full);

    std::size_t size() const { return m_ids.size(); }

    /// The row at a position of the list, counted from 0, and the position of a row.
    NameRow rowAt(std::size_t position) const { return m_order[position]; }

    std::size_t positionOf(NameRow row) const { return m_position[row]; }

    int id(NameRow row) const { return m_ids[row]; }

    QString fullName(NameRow row) const;
    /// Dates as they stand in the tree. These texts are empty where nothing is known.
    QString birthDate(NameRow row) const;
    QString deathDate(NameRow row) const;
    QString address(NameRow row) const;
    QString phone(NameRow row) const;

    /// What a click on a column's header does: sorts by that column, ascending, or descending when it was ascending.
    void sortBy(NameColumn column);

    /// How the list was sorted; no value for its first order.
    const std::optional<NameSort>& sort() const { return m_sort; }

    /// Whether a full name fits the pattern.
    bool matches(NameRow row, const Pattern& pattern) const;
    /// The first position, from `position` on, of a full name that fits the pattern. A pattern that is only a beginning
    /// is looked up rather than held against all names.
    std::optional<std::size_t> findFrom(std::size_t position, const Pattern& pattern) const;
    /// The last such position before `position`.
    std::optional<std::size_t> findBefore(std::size_t position, const Pattern& pattern) const;
    /// The rows of all full names that begin with a text, folded as Pattern::folded() folds it.
    std::span<const NameRow> beginningWith(QStringView foldedBeginning) const;

private:
    NameIndex();

    std::optional<std::string_view> sortedText(NameRow row, NameColumn column) const;
    void setOrder(std::vector<NameRow> order);

    /// By row.
    std::vector<std::int32_t> m_ids;
    ByteRows m_names;
    ByteRows m_foldedNames;
    TextTable m_texts;
    std::vector<std::uint32_t> m_position;
    /// By position.
    std::vector<NameRow> m_order;
    std::vector<NameRow> m_firstOrder;
    /// The rows in the order of their folded names.
    std::vector<NameRow> m_byFoldedName;
    std::optional<NameSort> m_sort;
};

/// Reads the index that was not needed before. False, with no index open, when there are no individuals; the caller
/// says so in its own words (index/messages.h).
bool OpenNameIndex(std::optional<NameIndex>& index, Connection& connection);

} // namespace stemwright
