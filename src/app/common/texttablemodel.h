// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QAbstractTableModel>
#include <QtCore/QStringList>

#include <functional>

/// A table of texts that somebody else keeps, for a grid: each cell is asked for when it is shown. Nothing here fails.
namespace stemwright
{

class TextTableModel : public QAbstractTableModel
{
public:
    using Cell = std::function<QString(std::size_t row, int column)>;

    TextTableModel(QStringList captions, Cell cell, QObject* parent)
        : QAbstractTableModel(parent), m_captions(std::move(captions)), m_cell(std::move(cell))
    {
    }

    /// Shows other rows, this many. No row is selected.
    void reset(std::size_t rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QStringList m_captions;
    Cell m_cell;
    int m_rows = 0;
};

} // namespace stemwright
