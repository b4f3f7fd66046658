// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/pictures/pictureview.h"

#include "app/common/messages.h"
#include "base/error.h"
#include "store/engine/engineerror.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

namespace stemwright
{

namespace
{

/// Pixels of the screen.
constexpr double grip = 6;
constexpr double smallestRectangle = 8;
constexpr double reachOfArrow = 12;
constexpr int margin = 6;
constexpr int millisecondsBeforeDecoding = 80;
/// Pixels of the picture that the pointer moves by a key, and with Ctrl.
constexpr double step = 1;
constexpr double longStep = 10;
/// Small pictures are enlarged no more than this.
constexpr double largestScale = 2;
/// The factor by which windows measure; the picture's pixels do not depend on it.
constexpr double twipsPerPixel = 15;

Qt::CursorShape CursorOf(DragMode mode)
{
    switch (mode) {
    case DragMode::Move:
        return Qt::SizeAllCursor;
    case DragMode::Left:
    case DragMode::Right:
        return Qt::SizeHorCursor;
    case DragMode::Top:
    case DragMode::Bottom:
        return Qt::SizeVerCursor;
    case DragMode::TopLeft:
    case DragMode::BottomRight:
        return Qt::SizeFDiagCursor;
    case DragMode::TopRight:
    case DragMode::BottomLeft:
        return Qt::SizeBDiagCursor;
    }
    return Qt::ArrowCursor;
}

/// A frame that is seen on light and dark pictures alike.
void PaintFrame(QPainter& painter, const QRectF& frame, const QColor& colour, double width)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 190), width + 2));
    painter.drawRect(frame);
    painter.setPen(QPen(colour, width));
    painter.drawRect(frame);
}

} // namespace

PictureView::PictureView(const QString& arrow, QWidget* parent) : QWidget(parent), m_arrow(arrow)
{
    setObjectName(QStringLiteral("imgPhoto"));
    setAccessibleName(QStringLiteral("Picture"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(160, 120);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_decodeSoon.setSingleShot(true);
    m_decodeSoon.setInterval(millisecondsBeforeDecoding);
    connect(&m_decodeSoon, &QTimer::timeout, this, &PictureView::decode);
}

void PictureView::showPicture(ImageFile picture)
{
    m_picture = std::move(picture);
    m_pictureSize = m_picture->size();
    m_text.clear();
    m_pointer.reset();
    decode();
}

void PictureView::showText(const QString& text)
{
    m_picture.reset();
    m_pictureSize = {};
    m_shown = {};
    m_text = text;
    m_pointer.reset();
    update();
}

void PictureView::showMarks(const std::vector<PersonMark>& marks, PointerTool tool, std::optional<std::size_t> selected)
{
    m_marks = marks;
    m_tool = tool;
    m_selected = selected;
    m_hovered.reset();
    update();
}

double PictureView::scale() const
{
    if (m_pictureSize.isEmpty()) {
        return 1;
    }
    const double across = static_cast<double>(std::max(1, width() - 2 * margin)) / m_pictureSize.width();
    const double down = static_cast<double>(std::max(1, height() - 2 * margin)) / m_pictureSize.height();
    return std::min({across, down, largestScale});
}

QRectF PictureView::pictureArea() const
{
    const QSizeF size = QSizeF(m_pictureSize) * scale();
    return {(width() - size.width()) / 2, (height() - size.height()) / 2, size.width(), size.height()};
}

PointerOnPicture PictureView::pointerOnPicture(const QRectF& pointer) const
{
    const QRectF area = pictureArea();
    return {pointer.left() * twipsPerPixel,
            pointer.top() * twipsPerPixel,
            pointer.width() * twipsPerPixel,
            pointer.height() * twipsPerPixel,
            area.left() * twipsPerPixel,
            area.top() * twipsPerPixel,
            twipsPerPixel,
            scale()};
}

QRectF PictureView::areaOf(const MarkPlace& place) const
{
    const PointerOnPicture pointer = PointerAt(place, pointerOnPicture({}));
    return {pointer.pointerLeft / twipsPerPixel, pointer.pointerTop / twipsPerPixel,
            pointer.pointerWidth / twipsPerPixel, pointer.pointerHeight / twipsPerPixel};
}

void PictureView::decode()
{
    m_decodeSoon.stop();
    if (!m_picture) {
        return;
    }
    const QSizeF shown = QSizeF(m_pictureSize) * scale() * devicePixelRatioF();
    const QSize size = shown.toSize().expandedTo({1, 1});
    try {
        m_shown.loadFromData(m_picture->bitmapOf(size), "BMP");
    } catch (const Error& error) {
        showText(error.text());
        return;
    }
    update();
}

void PictureView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Until the hand has come to rest, the picture at its last size will do.
    m_decodeSoon.start();
}

void PictureView::showPointer(PointerTool tool, const std::optional<MarkPlace>& place)
{
    if (!m_picture) {
        return;
    }
    m_tool = tool;
    const QRectF whole({}, QSizeF(m_pictureSize));
    const QSizeF size = tool == PointerTool::Arrow ? QSizeF() : QSizeF(defaultPointerSize);
    QRectF pointer(whole.center() - QPointF(size.width() / 2, size.height() / 2), size);
    if (place) {
        pointer.moveTopLeft(QPointF(place->x, place->y));
        if (tool == PointerTool::Rectangle && place->width.value_or(0) > 0) {
            pointer.setSize(QSizeF(*place->width, place->height.value_or(0)));
        }
    }
    m_pointer = KeptWithin(tool == PointerTool::Arrow ? QRectF(pointer.topLeft(), QSizeF(0, 0)) : pointer, whole);
    update();
}

void PictureView::hidePointer()
{
    m_pointer.reset();
    m_drag.reset();
    unsetCursor();
    update();
}

MarkPlace PictureView::pointerPlace() const
{
    const QRectF area = pictureArea();
    const QRectF shown(area.topLeft() + m_pointer->topLeft() * scale(), m_pointer->size() * scale());
    return GetPointerCoords(pointerOnPicture(shown));
}

void PictureView::setPointer(const QRectF& pointer)
{
    m_pointer = KeptWithin(pointer, {{}, QSizeF(m_pictureSize)});
    update();
}

std::optional<std::size_t> PictureView::markAt(QPointF place) const
{
    std::optional<std::size_t> found;
    double smallest = 0;
    for (std::size_t number = 0; number < m_marks.size(); ++number) {
        if (!m_marks[number].place) {
            continue;
        }
        QRectF area = areaOf(*m_marks[number].place);
        if (m_tool == PointerTool::Arrow) {
            area = QRectF(area.topLeft(), QSizeF()).adjusted(-reachOfArrow, -reachOfArrow, reachOfArrow, reachOfArrow);
        }
        const double extent = area.width() * area.height();
        // Of marks that lie in each other, the inner one is meant.
        if (area.contains(place) && (!found || extent < smallest)) {
            found = number;
            smallest = extent;
        }
    }
    return found;
}

void PictureView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_picture) {
        return;
    }
    if (!m_pointer) {
        if (const auto mark = markAt(event->position())) {
            Q_EMIT markClicked(static_cast<int>(*mark));
        }
        return;
    }
    const QPointF place = (event->position() - pictureArea().topLeft()) / scale();
    if (m_tool == PointerTool::Arrow) {
        // An arrow goes where it is wanted at once, and can be dragged on from there.
        const QRectF arrow(pictureArea().topLeft() + m_pointer->topLeft() * scale(), QSizeF(m_arrow.size()));
        if (!arrow.contains(event->position())) {
            setPointer({place, QSizeF(0, 0)});
        }
        m_drag = Drag{DragMode::Move, place, *m_pointer};
    } else if (const auto mode = DragModeAt(*m_pointer, place, grip / scale())) {
        m_drag = Drag{*mode, place, *m_pointer};
    }
}

void PictureView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_drag) {
        hover(event->position());
        return;
    }
    const QPointF place = (event->position() - pictureArea().topLeft()) / scale();
    const QRectF whole({}, QSizeF(m_pictureSize));
    m_pointer = m_tool == PointerTool::Arrow ? KeptWithin(m_drag->pointer.translated(place - m_drag->from), whole)
                                             : DraggedRectangle(m_drag->pointer, m_drag->mode, place - m_drag->from,
                                                                whole, smallestRectangle / scale());
    update();
}

void PictureView::mouseReleaseEvent(QMouseEvent*)
{
    m_drag.reset();
}

void PictureView::hover(QPointF place)
{
    if (m_pointer && m_tool == PointerTool::Rectangle) {
        const auto mode = DragModeAt(*m_pointer, (place - pictureArea().topLeft()) / scale(), grip / scale());
        setCursor(mode ? CursorOf(*mode) : Qt::ArrowCursor);
    } else if (m_pointer) {
        setCursor(Qt::CrossCursor);
    }
    const auto hovered = m_pointer ? std::nullopt : markAt(place);
    if (hovered != m_hovered) {
        m_hovered = hovered;
        update();
    }
}

void PictureView::leaveEvent(QEvent*)
{
    m_hovered.reset();
    update();
}

bool PictureView::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto mark = m_pointer ? std::nullopt : markAt(help->pos());
    QToolTip::showText(help->globalPos(), mark ? m_marks[*mark].name.toHtmlEscaped() : QString(), this);
    return true;
}

void PictureView::keyPressEvent(QKeyEvent* event)
{
    if (!m_pointer) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
        moveByKey({-step, 0}, event->modifiers());
        break;
    case Qt::Key_Right:
        moveByKey({step, 0}, event->modifiers());
        break;
    case Qt::Key_Up:
        moveByKey({0, -step}, event->modifiers());
        break;
    case Qt::Key_Down:
        moveByKey({0, step}, event->modifiers());
        break;
    case Qt::Key_Escape:
        Q_EMIT pointerCancelled();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PictureView::moveByKey(QPointF way, Qt::KeyboardModifiers modifiers)
{
    const QPointF distance = modifiers.testFlag(Qt::ControlModifier) ? way * (longStep / step) : way;
    const bool resizes = modifiers.testFlag(Qt::ShiftModifier) && m_tool == PointerTool::Rectangle;
    m_pointer = DraggedRectangle(*m_pointer, resizes ? DragMode::BottomRight : DragMode::Move, distance,
                                 {{}, QSizeF(m_pictureSize)}, smallestRectangle / scale());
    update();
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!m_picture) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(margin, margin, -margin, -margin), Qt::AlignCenter | Qt::TextWordWrap, m_text);
        return;
    }
    const QRectF area = pictureArea();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(area, m_shown, QRectF(m_shown.rect()));
    for (std::size_t number = 0; number < m_marks.size(); ++number) {
        const bool isSelected = m_selected == number;
        if (m_marks[number].place && (m_hovered == number || (isSelected && !m_pointer))) {
            paintMark(painter, m_marks[number], isSelected);
        }
    }
    if (m_pointer) {
        paintPointer(painter);
    }
    if (hasFocus() && m_pointer) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(area.adjusted(-2, -2, 2, 2));
    }
}

void PictureView::paintMark(QPainter& painter, const PersonMark& mark, bool strong) const
{
    const QRectF area = areaOf(*mark.place);
    if (m_tool == PointerTool::Arrow) {
        painter.drawPixmap(area.topLeft(), m_arrow);
    } else {
        PaintFrame(painter, area, QColor(0, 0, 255), strong ? 2 : 1);
    }
}

void PictureView::paintPointer(QPainter& painter) const
{
    const QRectF shown(pictureArea().topLeft() + m_pointer->topLeft() * scale(), m_pointer->size() * scale());
    if (m_tool == PointerTool::Arrow) {
        painter.drawPixmap(shown.topLeft(), m_arrow);
        return;
    }
    PaintFrame(painter, shown, QColor(214, 40, 32), 2);
    painter.setBrush(QColor(214, 40, 32));
    painter.setPen(QPen(Qt::white, 1));
    for (const QPointF corner : {shown.topLeft(), shown.topRight(), shown.bottomLeft(), shown.bottomRight()}) {
        painter.drawRect(QRectF(corner - QPointF(3, 3), QSizeF(6, 6)));
    }
}

void ShowStoredPicture(PictureView& view, Connection& connection, int pictureId)
{
    try {
        const QByteArray bytes = StoredPicture(connection, pictureId);
        if (bytes.isEmpty()) {
            view.showText(appmessages::NoPicture());
        } else {
            view.showPicture(ImageFile(bytes));
        }
    } catch (const std::exception& exception) {
        view.showText(appmessages::CannotShowPicture(ReasonText(exception)));
    }
}

} // namespace stemwright
