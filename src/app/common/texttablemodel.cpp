// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/common/texttablemodel.h"

namespace stemwright
{

void TextTableModel::reset(std::size_t rows)
{
    beginResetModel();
    m_rows = static_cast<int>(rows);
    endResetModel();
}

int TextTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int TextTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_captions.size());
}

QVariant TextTableModel::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole ? m_cell(static_cast<std::size_t>(index.row()), index.column()) : QVariant();
}

QVariant TextTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_captions.value(section) : QVariant();
}

} // namespace stemwright
