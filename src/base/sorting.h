// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/Qt>

#include <optional>

/// How lists that the user looks at are sorted. Stands on nothing.
namespace stemwright
{

/// By which of its columns a list is sorted, and how.
template <typename Column>
struct ColumnSort {
    Column column{};
    Qt::SortOrder direction = Qt::AscendingOrder;
};

/// The sort after a click on a column's header: by that column ascending, or descending when that is how it stands.
template <typename Column>
ColumnSort<Column> SortAfterClick(const std::optional<ColumnSort<Column>>& now, Column column)
{
    const bool again = now && now->column == column && now->direction == Qt::AscendingOrder;
    return {column, again ? Qt::DescendingOrder : Qt::AscendingOrder};
}

} // namespace stemwright
