// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/pictures/picturetablemodel.h"

#include <QtWidgets/QWidget>

class QListView;
class QStackedLayout;
class QTableView;

/// The upper half of the main window: the current list of pictures as a table of contents (`dtgTOC`) or as a gallery of
/// thumbnails (`picTGallery`), with one current picture. Nothing here fails. Stands on the list's model.
namespace stemwright
{

class PictureBrowser : public QWidget
{
    Q_OBJECT

public:
    explicit PictureBrowser(QWidget* parent);

    /// Replaces the list. `wanted` becomes current where the list has it, otherwise the first one.
    void setList(std::optional<PictureTable> table, FamilyFile& file, std::optional<int> wanted);

    const std::optional<PictureTable>& table() const { return m_model->table(); }

    /// The current picture; no value in an empty list.
    std::optional<int> current() const;
    /// Makes a picture current without telling. False when the list does not have it.
    bool setCurrent(int pictureId);

    int row() const;

    int rowCount() const { return m_model->rowCount(); }

    /// Makes the picture in a row current; beyond the ends, the first or the last one.
    void goToRow(int row);

    /// Shows thumbnails or the table. False, and the table stays, for a list too long for thumbnails.
    bool showThumbnails(bool thumbnails);
    bool showsThumbnails() const;

Q_SIGNALS:
    void currentChanged();
    /// A picture was double-clicked, or Return pressed on it.
    void activated();
    /// The gallery was left because it became too narrow for the list.
    void galleryLeft();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QModelIndex currentIndex() const;
    void select(int row);
    void sortBy(int column);
    void showSort();

    PictureTableModel* m_model;
    QTableView* dtgTOC;
    QListView* picTGallery;
    QStackedLayout* m_views;
    bool m_moving = false;
    /// Whether the user has set widths, which stay as long as the columns are the same.
    bool m_widthsSet = false;
};

} // namespace stemwright
