// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/pointerdrag.h"

namespace stemwright
{

namespace
{

/// A length of a rectangle: its left or upper end, its middle, or its right or lower end.
enum class Zone { Start, Middle, End };

std::optional<Zone> ZoneAt(double start, double end, double place, double grip)
{
    if (place < start - grip || place > end + grip) {
        return std::nullopt;
    }
    const double inner = std::min(grip, (end - start) / 3);
    if (place <= start + inner) {
        return Zone::Start;
    }
    return place >= end - inner ? Zone::End : Zone::Middle;
}

enum class Side { Stays, Follows };

struct MovingSides {
    Side left = Side::Stays;
    Side top = Side::Stays;
    Side right = Side::Stays;
    Side bottom = Side::Stays;
};

MovingSides SidesOf(DragMode mode)
{
    using enum Side;
    switch (mode) {
    case DragMode::Move:
        return {Follows, Follows, Follows, Follows};
    case DragMode::Left:
        return {Follows, Stays, Stays, Stays};
    case DragMode::TopLeft:
        return {Follows, Follows, Stays, Stays};
    case DragMode::Top:
        return {Stays, Follows, Stays, Stays};
    case DragMode::TopRight:
        return {Stays, Follows, Follows, Stays};
    case DragMode::Right:
        return {Stays, Stays, Follows, Stays};
    case DragMode::BottomRight:
        return {Stays, Stays, Follows, Follows};
    case DragMode::Bottom:
        return {Stays, Stays, Stays, Follows};
    case DragMode::BottomLeft:
        return {Follows, Stays, Stays, Follows};
    }
    return {};
}

double Clamped(double value, double lowest, double highest)
{
    return std::max(lowest, std::min(value, highest));
}

} // namespace

std::optional<DragMode> DragModeAt(const QRectF& rectangle, QPointF place, double grip)
{
    static constexpr DragMode modes[3][3] = {{DragMode::TopLeft, DragMode::Top, DragMode::TopRight},
                                             {DragMode::Left, DragMode::Move, DragMode::Right},
                                             {DragMode::BottomLeft, DragMode::Bottom, DragMode::BottomRight}};
    const auto across = ZoneAt(rectangle.left(), rectangle.right(), place.x(), grip);
    const auto down = ZoneAt(rectangle.top(), rectangle.bottom(), place.y(), grip);
    if (!across || !down) {
        return std::nullopt;
    }
    return modes[static_cast<std::size_t>(*down)][static_cast<std::size_t>(*across)];
}

QRectF DraggedRectangle(const QRectF& rectangle, DragMode mode, QPointF way, const QRectF& picture, double smallest)
{
    if (mode == DragMode::Move) {
        return KeptWithin(rectangle.translated(way), picture);
    }
    const MovingSides sides = SidesOf(mode);
    QRectF dragged = rectangle;
    if (sides.left == Side::Follows) {
        dragged.setLeft(Clamped(rectangle.left() + way.x(), picture.left(), rectangle.right() - smallest));
    }
    if (sides.top == Side::Follows) {
        dragged.setTop(Clamped(rectangle.top() + way.y(), picture.top(), rectangle.bottom() - smallest));
    }
    if (sides.right == Side::Follows) {
        dragged.setRight(Clamped(rectangle.right() + way.x(), rectangle.left() + smallest, picture.right()));
    }
    if (sides.bottom == Side::Follows) {
        dragged.setBottom(Clamped(rectangle.bottom() + way.y(), rectangle.top() + smallest, picture.bottom()));
    }
    return dragged;
}

QRectF KeptWithin(const QRectF& rectangle, const QRectF& picture)
{
    const QSizeF size = rectangle.size().boundedTo(picture.size());
    return {Clamped(rectangle.left(), picture.left(), picture.right() - size.width()),
            Clamped(rectangle.top(), picture.top(), picture.bottom() - size.height()), size.width(), size.height()};
}

} // namespace stemwright
