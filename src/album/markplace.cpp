// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/markplace.h"

#include "base/error.h"

#include <QtCore/QRegularExpression>

#include <cmath>
#include <cstdint>
#include <limits>

namespace stemwright
{

namespace
{

/// Rounds to the nearest whole number, ties to even, which is how the processor rounds unless told otherwise.
int Rounded(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int16_t>::min() && rounded <= std::numeric_limits<std::int16_t>::max())) {
        throw Error(QStringLiteral("A mark cannot stand %1 pixels away from the corner of its picture.").arg(value));
    }
    return static_cast<int>(rounded);
}

[[noreturn]] void RefuseTyped(const QString& typed)
{
    throw Error(QStringLiteral("\"%1\" is not a place in a picture. Please give it in pixels as X,Y or "
                               "X,Y,WIDTH,HEIGHT, for example 120,40,60,80.")
                    .arg(typed));
}

} // namespace

MarkPlace GetPointerCoords(const PointerOnPicture& pointer)
{
    const auto stored = [&pointer](double twips) { return Rounded(twips / pointer.twipsPerPixel / pointer.scale); };
    return {stored(pointer.pointerLeft - pointer.pictureLeft), stored(pointer.pointerTop - pointer.pictureTop),
            stored(pointer.pointerWidth), stored(pointer.pointerHeight)};
}

PointerOnPicture PointerAt(const MarkPlace& place, PointerOnPicture shown)
{
    const double factor = shown.scale * shown.twipsPerPixel;
    shown.pointerLeft = shown.pictureLeft + place.x * factor;
    shown.pointerTop = shown.pictureTop + place.y * factor;
    shown.pointerWidth = place.width ? *place.width * factor : shown.pointerWidth;
    shown.pointerHeight = place.height ? *place.height * factor : shown.pointerHeight;
    return shown;
}

MarkPlace ReadMarkPlace(const QString& typed)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(-?\\d+)\\s*,\\s*(-?\\d+)\\s*(?:,\\s*(\\d+)\\s*,\\s*(\\d+)\\s*)?$"));
    const QRegularExpressionMatch match = form.match(typed);
    if (!match.hasMatch()) {
        RefuseTyped(typed);
    }
    const auto number = [&match](int group) { return Rounded(match.captured(group).toDouble()); };
    MarkPlace place{number(1), number(2), std::nullopt, std::nullopt};
    if (match.hasCaptured(3)) {
        place.width = number(3);
        place.height = number(4);
    }
    return place;
}

void RequireWithinPicture(const MarkPlace& place, QSize picture, PointerTool tool)
{
    if (picture.isEmpty()) {
        throw Error(QStringLiteral("The record has no picture in which a mark could stand."));
    }
    const int width = place.width.value_or(0);
    const int height = place.height.value_or(0);
    if (tool == PointerTool::Rectangle && (width == 0 || height == 0)) {
        throw Error(QStringLiteral("A rectangle must be at least one pixel wide and high."));
    }
    if (place.x < 0 || place.y < 0 || place.x >= picture.width() || place.y >= picture.height() ||
        place.x + width > picture.width() || place.y + height > picture.height()) {
        throw Error(QStringLiteral("The mark lies outside the picture, which is %1 pixels wide and %2 pixels high.")
                        .arg(picture.width())
                        .arg(picture.height()));
    }
}

} // namespace stemwright
