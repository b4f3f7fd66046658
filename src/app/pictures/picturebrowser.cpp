// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/pictures/picturebrowser.h"

#include "album/gallery.h"
#include "app/common/controls.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QStackedLayout>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTableView>

namespace stemwright
{

namespace
{

/// Paints a thumbnail in the middle of its cell, with a frame when it is the current one.
class ThumbnailDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        return {galleryCell, galleryCell};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const auto thumbnail = index.data(PictureTableModel::thumbnailRole).value<QPixmap>();
        if (option.state.testFlag(QStyle::State_Selected)) {
            painter->fillRect(option.rect.adjusted(1, 1, -1, -1), option.palette.highlight());
        }
        const QRect cell(option.rect.topLeft(), QSize(galleryCell, galleryCell));
        if (thumbnail.isNull()) {
            painter->setPen(option.palette.color(QPalette::Disabled, QPalette::Text));
            painter->drawText(cell, Qt::AlignCenter, index.siblingAtColumn(0).data().toString());
            return;
        }
        painter->drawPixmap(cell.left() + (galleryCell - thumbnail.width()) / 2,
                            cell.top() + (galleryCell - thumbnail.height()) / 2, thumbnail);
    }
};

QTableView* MakeContents(PictureTableModel& model)
{
    QTableView* grid = MakeGrid("dtgTOC", QStringLiteral("Table of contents"), model);
    grid->horizontalHeader()->setSectionsClickable(true);
    grid->horizontalHeader()->setStretchLastSection(true);
    // Widths go by the first rows; a thousand of them, as is usual, take as long as all the rest of opening a file.
    grid->horizontalHeader()->setResizeContentsPrecision(50);
    return grid;
}

QListView* MakeGallery(PictureTableModel& model)
{
    auto* gallery = new QListView;
    gallery->setObjectName(QStringLiteral("picTGallery"));
    gallery->setAccessibleName(QStringLiteral("Thumbnails"));
    gallery->setModel(&model);
    gallery->setItemDelegate(new ThumbnailDelegate(gallery));
    gallery->setViewMode(QListView::IconMode);
    gallery->setMovement(QListView::Static);
    gallery->setResizeMode(QListView::Adjust);
    gallery->setUniformItemSizes(true);
    gallery->setGridSize({galleryCell, galleryCell});
    gallery->setSelectionMode(QAbstractItemView::SingleSelection);
    gallery->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    return gallery;
}

} // namespace

PictureBrowser::PictureBrowser(QWidget* parent)
    : QWidget(parent), m_model(new PictureTableModel(this)), dtgTOC(MakeContents(*m_model)),
      picTGallery(MakeGallery(*m_model)), m_views(new QStackedLayout(this))
{
    // One selection for both views.
    picTGallery->setSelectionModel(dtgTOC->selectionModel());
    m_views->addWidget(dtgTOC);
    m_views->addWidget(picTGallery);
    connect(dtgTOC->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& now, const QModelIndex& before) {
                if (!m_moving && now.row() != before.row()) {
                    Q_EMIT currentChanged();
                }
            });
    connect(dtgTOC->horizontalHeader(), &QHeaderView::sectionClicked, this, &PictureBrowser::sortBy);
    connect(dtgTOC->horizontalHeader(), &QHeaderView::sectionResized, this, [this](int section) {
        // The last column takes what the window leaves.
        m_widthsSet = m_widthsSet || (!m_moving && section < m_model->columnCount() - 1);
    });
    connect(dtgTOC, &QTableView::activated, this, &PictureBrowser::activated);
    connect(picTGallery, &QListView::activated, this, &PictureBrowser::activated);
}

QModelIndex PictureBrowser::currentIndex() const
{
    return dtgTOC->selectionModel()->currentIndex();
}

std::optional<int> PictureBrowser::current() const
{
    const QModelIndex index = currentIndex();
    return index.isValid() ? std::optional(table()->pictureId(static_cast<std::size_t>(index.row()))) : std::nullopt;
}

int PictureBrowser::row() const
{
    return currentIndex().row();
}

void PictureBrowser::select(int row)
{
    const QModelIndex index = m_model->index(row, 0);
    dtgTOC->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    // A view that is not shown would lay out all its items for this.
    qobject_cast<QAbstractItemView*>(m_views->currentWidget())->scrollTo(index);
}

void PictureBrowser::setList(std::optional<PictureTable> table, FamilyFile& file, std::optional<int> wanted)
{
    {
        const QScopedValueRollback moving(m_moving, true);
        const int columns = m_model->columnCount();
        m_model->setTable(std::move(table), file);
        m_widthsSet = m_widthsSet && m_model->columnCount() == columns;
        if (!m_widthsSet) {
            dtgTOC->resizeColumnsToContents();
        }
        const int row = wanted ? m_model->rowOf(*wanted) : 0;
        select(std::max(row, 0));
        showSort();
        if (showsThumbnails() && !showThumbnails(true)) {
            Q_EMIT galleryLeft();
        }
    }
    Q_EMIT currentChanged();
}

bool PictureBrowser::setCurrent(int pictureId)
{
    const int row = m_model->rowOf(pictureId);
    if (row < 0) {
        return false;
    }
    select(row);
    return true;
}

void PictureBrowser::goToRow(int row)
{
    if (rowCount() > 0) {
        select(std::clamp(row, 0, rowCount() - 1));
    }
}

void PictureBrowser::sortBy(int column)
{
    const std::optional<int> kept = current();
    {
        const QScopedValueRollback moving(m_moving, true);
        m_model->sortBy(column);
        if (kept) {
            setCurrent(*kept);
        }
    }
    showSort();
}

void PictureBrowser::showSort()
{
    QHeaderView& header = *dtgTOC->horizontalHeader();
    const std::optional<ListSort> sort = table() ? table()->sort() : std::nullopt;
    header.setSortIndicatorShown(sort.has_value());
    if (sort) {
        header.setSortIndicator(static_cast<int>(sort->column), sort->direction);
    }
}

bool PictureBrowser::showThumbnails(bool thumbnails)
{
    const bool fits = FitsGallery(rowCount(), GalleryColumns(picTGallery->viewport()->width()));
    const bool shows = thumbnails && fits;
    m_views->setCurrentWidget(shows ? static_cast<QWidget*>(picTGallery) : dtgTOC);
    if (currentIndex().isValid()) {
        qobject_cast<QAbstractItemView*>(m_views->currentWidget())->scrollTo(currentIndex());
    }
    return shows == thumbnails;
}

bool PictureBrowser::showsThumbnails() const
{
    return m_views->currentWidget() == picTGallery;
}

void PictureBrowser::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (showsThumbnails() && !showThumbnails(true)) {
        Q_EMIT galleryLeft();
    }
}

} // namespace stemwright
