// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/pictures/picturetablemodel.h"

#include "album/picturerecord.h"

namespace stemwright
{

namespace
{

/// Some screens full of thumbnails.
constexpr int keptThumbnails = 1'000;

} // namespace

PictureTableModel::PictureTableModel(QObject* parent) : QAbstractTableModel(parent), m_thumbnails(keptThumbnails) {}

void PictureTableModel::setTable(std::optional<PictureTable> table, FamilyFile& file)
{
    beginResetModel();
    m_table = std::move(table);
    m_file = &file;
    m_thumbnails.clear();
    endResetModel();
}

int PictureTableModel::rowOf(int pictureId) const
{
    for (std::size_t row = 0; m_table && row < m_table->rowCount(); ++row) {
        if (m_table->pictureId(row) == pictureId) {
            return static_cast<int>(row);
        }
    }
    return -1;
}

int PictureTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_table ? 0 : static_cast<int>(m_table->rowCount());
}

int PictureTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_table ? 0 : static_cast<int>(m_table->columns().size());
}

QVariant PictureTableModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
    case Qt::DisplayRole:
        // The text of a date without a precision begins with a blank.
        return m_table->shown(row, static_cast<std::size_t>(index.column())).trimmed();
    case thumbnailRole:
        return thumbnail(m_table->pictureId(row));
    default:
        return {};
    }
}

QVariant PictureTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || !m_table) {
        return {};
    }
    return m_table->columns()[static_cast<std::size_t>(section)].caption;
}

void PictureTableModel::sortBy(int column)
{
    if (m_table) {
        beginResetModel();
        m_table->sortBy(static_cast<std::size_t>(column));
        endResetModel();
    }
}

QPixmap PictureTableModel::thumbnail(int pictureId) const
{
    if (const QPixmap* kept = m_thumbnails.object(pictureId)) {
        return *kept;
    }
    QPixmap pixmap;
    try {
        pixmap.loadFromData(StoredThumbnail(m_file->connection(), pictureId), "BMP");
    } catch (const std::exception&) {
        // A thumbnail that cannot be read leaves its cell empty, as one that was never made does.
    }
    m_thumbnails.insert(pictureId, new QPixmap(pixmap));
    return pixmap;
}

} // namespace stemwright
