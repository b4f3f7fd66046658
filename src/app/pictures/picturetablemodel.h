// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "queries/picturetable.h"
#include "store/file/familyfile.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QCache>
#include <QtGui/QPixmap>

/// The current list of pictures for the grid and the gallery: its cells, and for the gallery the thumbnails of those
/// that are in view. Nothing here fails. Stands on the list in memory.
namespace stemwright
{

class PictureTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The role of a picture's thumbnail, a QPixmap; null for a picture without one.
    static constexpr int thumbnailRole = Qt::UserRole;

    explicit PictureTableModel(QObject* parent);

    /// Replaces the list; no value for none. Thumbnails come from the family file that is open when they are shown:
    /// while another one is being opened, a list may for a moment outlive its file.
    void setTable(std::optional<PictureTable> table, FamilyFile& file);

    const std::optional<PictureTable>& table() const { return m_table; }

    /// The row of a picture; -1 when the list does not have it.
    int rowOf(int pictureId) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Sorts by a column, the other way round when it is sorted by it already.
    void sortBy(int column);

private:
    QPixmap thumbnail(int pictureId) const;

    std::optional<PictureTable> m_table;
    FamilyFile* m_file = nullptr;
    mutable QCache<int, QPixmap> m_thumbnails;
};

} // namespace stemwright
