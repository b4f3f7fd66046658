// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "album/pointerdrag.h"
#include "album/gallery.h"

#include <gtest/gtest.h>

namespace stemwright::test
{

namespace
{

const QRectF picture(0, 0, 400, 300);
const QRectF rectangle(100, 80, 60, 40);
constexpr double smallest = 4;

struct Drag {
    DragMode mode;
    QPointF press;
    QRectF after;
};

} // namespace

TEST(PointerDrag, EachOfTheNineDragsMovesItsOwnSides)
{
    const QPointF way(10, 5);
    const Drag drags[] = {
        {DragMode::Move, {130, 100}, {110, 85, 60, 40}},        {DragMode::Left, {101, 100}, {110, 80, 50, 40}},
        {DragMode::TopLeft, {98, 79}, {110, 85, 50, 35}},       {DragMode::Top, {130, 82}, {100, 85, 60, 35}},
        {DragMode::TopRight, {160, 80}, {100, 85, 70, 35}},     {DragMode::Right, {163, 100}, {100, 80, 70, 40}},
        {DragMode::BottomRight, {158, 121}, {100, 80, 70, 45}}, {DragMode::Bottom, {130, 120}, {100, 80, 60, 45}},
        {DragMode::BottomLeft, {100, 118}, {110, 80, 50, 45}}};
    for (const Drag& drag : drags) {
        const auto mode = DragModeAt(rectangle, drag.press, 5);
        ASSERT_TRUE(mode) << drag.press.x();
        EXPECT_EQ(*mode, drag.mode);
        EXPECT_EQ(DraggedRectangle(rectangle, *mode, way, picture, smallest), drag.after) << int(drag.mode);
    }
    EXPECT_FALSE(DragModeAt(rectangle, {94, 100}, 5));
    EXPECT_FALSE(DragModeAt(rectangle, {130, 126}, 5));
    EXPECT_EQ(DragModeAt({10, 10, 9, 9}, {14.5, 14.5}, 5), DragMode::Move) << "a small one can still be moved";
}

TEST(PointerDrag, NothingLeavesThePictureOrTurnsInsideOut)
{
    const QPointF far(1000, 1000);
    EXPECT_EQ(DraggedRectangle(rectangle, DragMode::Move, far, picture, smallest), QRectF(340, 260, 60, 40));
    EXPECT_EQ(DraggedRectangle(rectangle, DragMode::Move, -far, picture, smallest), QRectF(0, 0, 60, 40));
    EXPECT_EQ(DraggedRectangle(rectangle, DragMode::BottomRight, far, picture, smallest), QRectF(100, 80, 300, 220));
    EXPECT_EQ(DraggedRectangle(rectangle, DragMode::TopLeft, far, picture, smallest), QRectF(156, 116, 4, 4));
    EXPECT_EQ(DraggedRectangle(rectangle, DragMode::TopLeft, -far, picture, smallest), QRectF(0, 0, 160, 120));
    EXPECT_EQ(DraggedRectangle(rectangle, DragMode::Right, -far, picture, smallest), QRectF(100, 80, 4, 40));
    EXPECT_EQ(KeptWithin({-50, 290, 900, 20}, picture), QRectF(0, 280, 400, 20));
}

TEST(Gallery, IsOnlyForListsThatFit)
{
    EXPECT_EQ(GalleryColumns(40), 1);
    EXPECT_EQ(GalleryColumns(909), 10);
    EXPECT_TRUE(FitsGallery(1820, 10));
    EXPECT_FALSE(FitsGallery(1821, 10)) << "a last partial row counts whole";
    EXPECT_TRUE(FitsGallery(0, 1));
}

} // namespace stemwright::test
