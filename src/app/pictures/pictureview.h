// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/imagefile.h"
#include "album/personmarks.h"
#include "album/pointerdrag.h"

#include <QtCore/QTimer>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

/// A picture (the control `imgPhoto`) scaled to the room it has, with the marks of its persons and, while a person is
/// being marked, the pointer (`imgPointer`) that hand and keys move. Nothing here fails: a picture that cannot be shown
/// is replaced by the reason. Stands on the album's pictures and marks.
namespace stemwright
{

class PictureView : public QWidget
{
    Q_OBJECT

public:
    /// `arrow` is the image of the pointer that marks by its tip, which is its top left corner.
    PictureView(const QString& arrow, QWidget* parent);

    void showPicture(ImageFile picture);
    /// Shows a text where the picture would be.
    void showText(const QString& text);

    /// The marks to show when the mouse is on them; `selected` is shown always.
    void showMarks(const std::vector<PersonMark>& marks, PointerTool tool, std::optional<std::size_t> selected);

    /// Shows the pointer at a place, or in the middle of what can be seen. Without a picture nothing is shown.
    void showPointer(PointerTool tool, const std::optional<MarkPlace>& place);
    void hidePointer();

    bool pointerShown() const { return m_pointer.has_value(); }

    /// The place that the pointer marks. Must only be called while it is shown. Throws Error outside the range of
    /// places.
    MarkPlace pointerPlace() const;

    QSize sizeHint() const override { return {420, 340}; }

Q_SIGNALS:
    /// A mark was clicked that belongs to the person with this number in the list.
    void markClicked(int mark);
    /// Escape was pressed while the pointer was shown.
    void pointerCancelled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct Drag {
        DragMode mode;
        QPointF from;
        QRectF pointer;
    };

    /// Where the picture is shown, and how many pixels of the screen one of its own takes.
    QRectF pictureArea() const;
    double scale() const;
    PointerOnPicture pointerOnPicture(const QRectF& pointer) const;
    QRectF areaOf(const MarkPlace& place) const;
    std::optional<std::size_t> markAt(QPointF place) const;
    void decode();
    void setPointer(const QRectF& pointer);
    void hover(QPointF place);
    void moveByKey(QPointF step, Qt::KeyboardModifiers modifiers);
    void paintMark(QPainter& painter, const PersonMark& mark, bool strong) const;
    void paintPointer(QPainter& painter) const;

    std::optional<ImageFile> m_picture;
    QSize m_pictureSize;
    QString m_text;
    QPixmap m_shown;
    QPixmap m_arrow;
    QTimer m_decodeSoon;
    std::vector<PersonMark> m_marks;
    PointerTool m_tool = PointerTool::Arrow;
    std::optional<std::size_t> m_selected;
    std::optional<std::size_t> m_hovered;
    /// In pixels of the picture; an arrow has no size.
    std::optional<QRectF> m_pointer;
    std::optional<Drag> m_drag;
};

/// Shows the picture of a record, or the reason why it cannot be shown.
void ShowStoredPicture(PictureView& view, Connection& connection, int pictureId);

} // namespace stemwright
