// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QRectF>

#include <optional>

/// How the pointer over a picture follows the hand: which drag a press begins, and where the pointer goes from there.
/// All places are in pixels of the screen, in the coordinates of the window that shows the picture. Nothing here fails.
namespace stemwright
{

/// Moving the whole pointer, or one of a rectangle's sides or corners.
enum class DragMode { Move, Left, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft };

/// The drag that a press at this place begins; no value outside the rectangle. Sides and corners are gripped up to
/// `grip` pixels from the edge on either side of it, within a small rectangle up to a third of its length.
std::optional<DragMode> DragModeAt(const QRectF& rectangle, QPointF place, double grip);

/// The rectangle after a drag by `way` from where it was when the drag began. It stays within the picture, and no side
/// comes nearer to the opposite one than `smallest`.
QRectF DraggedRectangle(const QRectF& rectangle, DragMode mode, QPointF way, const QRectF& picture, double smallest);

/// A rectangle or, with no size, an arrow's tip moved by the shortest way so that it lies within the picture; what is
/// larger than the picture is cut to its size.
QRectF KeptWithin(const QRectF& rectangle, const QRectF& picture);

} // namespace stemwright
