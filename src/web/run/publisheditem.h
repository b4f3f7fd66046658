// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "store/engine/schema.h"
#include "web/setup/selecteditem.h"

#include <string>

/// The selected items of a setup, tied to the columns that a run has in memory. An item whose column does not exist (a
/// fact number beyond the schema, a damaged record) is left out. Stands on the schema.
namespace stemwright
{

/// The columns of one table that a run reads, each once, in the order of their numbers.
class ColumnList
{
public:
    /// Begins with columns that are always read; their numbers are 0, 1, 2, ...
    ColumnList(const TableDefinition& table, const QStringList& alwaysRead);

    /// The number of a column, which is read from now on; no value when the table has no such column.
    std::optional<std::size_t> add(const QString& column);

    std::size_t size() const { return static_cast<std::size_t>(m_columns.size()); }

    /// The columns as the list of a SELECT.
    QString selectList() const;

private:
    const TableDefinition& m_table;
    QStringList m_columns;
};

enum class ItemTable { Individual, Family, ChildInFamily };
enum class ItemKind { NamePart, Event, Relationship };

/// A selected item ready to be written. The texts are UTF-8.
struct PublishedItem {
    std::string name;
    /// The column's or the event's own name, for example "GivenName" or "BIRT".
    QString source;
    ItemTable table = ItemTable::Individual;
    ItemKind kind = ItemKind::NamePart;
    bool inTree = false;
    bool isPrivate = false;
    std::string beforeItem;
    std::string beforePlace;
    std::string afterItem;
    /// The number of the event's date column, or of the only column.
    std::size_t value = 0;
    /// The number of the event's place column.
    std::size_t place = 0;
};

/// The columns that a run reads from each table.
struct RunColumns {
    ColumnList individual;
    ColumnList family;
    ColumnList childInFamily;
};

/// Ties the items to columns, in their order, and has the columns read.
std::vector<PublishedItem> ResolveItems(const std::vector<SelectedItem>& items, RunColumns& columns);

} // namespace stemwright
