// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "album/picturerecord.h"

#include <QtCore/QSize>
#include <QtCore/QString>

#include <optional>

/// Where a mark stands on a picture: from the pointer that the user dragged over the shown picture, or from typed
/// numbers. Places are in pixels of the picture at its full size, turned upright, counted from its top left corner, as
/// signed 16-bit numbers. What does not fit is refused with Error. Stands on picture records.
namespace stemwright
{

/// A rectangle round a person, or the tip of an arrow, which has no size.
struct MarkPlace {
    int x = 0;
    int y = 0;
    std::optional<int> width;
    std::optional<int> height;

    bool operator==(const MarkPlace&) const = default;
};

/// The pointer and the picture beneath it as a window shows them, in twips (of which a pixel of the screen has
/// `twipsPerPixel`, on both axes). `scale` is the display factor: the shown size divided by the real one.
struct PointerOnPicture {
    double pointerLeft = 0;
    double pointerTop = 0;
    double pointerWidth = 0;
    double pointerHeight = 0;
    double pictureLeft = 0;
    double pictureTop = 0;
    double twipsPerPixel = 15;
    double scale = 1;
};

/// The place that the pointer marks. Throws Error outside the range of places.
MarkPlace GetPointerCoords(const PointerOnPicture& pointer);

/// The pointer that stands for a stored place; the reverse of GetPointerCoords(). `shown` says how the picture is shown
/// and, for a place without a size, how large the pointer is.
PointerOnPicture PointerAt(const MarkPlace& place, PointerOnPicture shown);

/// Reads "X,Y" or "X,Y,WIDTH,HEIGHT". Throws Error for anything else.
MarkPlace ReadMarkPlace(const QString& typed);

/// Throws Error unless the place lies within a picture of this size, and has a size where the tool needs one.
void RequireWithinPicture(const MarkPlace& place, QSize picture, PointerTool tool);

} // namespace stemwright
