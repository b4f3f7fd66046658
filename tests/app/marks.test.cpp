// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#include "app/appworld.h"
#include "app/pictures/recordeditor.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>

using namespace stemwright;
using namespace stemwright::test;

namespace
{

/// The record editor with a picture shown at a scale; CTest runs these on a screen of double density as well.
class MarksTest : public AppTest, public testing::WithParamInterface<double>
{
protected:
    void SetUp() override
    {
        editor.resize(1500, 900);
        view.setFixedSize((QSizeF(size) * GetParam()).toSize() + QSize(12, 12));
        editor.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
        editor.add(connection, {}, picture("Beach.jpg", size));
        ASSERT_EQ(ScaleIn(view, size), GetParam());
        ASSERT_EQ(view.devicePixelRatioF(), std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble()));
    }

    void enter(const QString& name)
    {
        Type(editor, "txtName", name);
        Press(editor, "cmdOKName");
    }

    QStringList storedMarks()
    {
        Press(editor, "cmdApply");
        return Rows(connection, "SELECT Name || ' ' || X || ',' || Y || ' ' || Width || 'x' || Height "
                                "FROM Pic2Person ORDER BY Name");
    }

    const QSize size{400, 300};
    Connection& connection = world.newFamilyFile().connection();
    RecordEditor editor{environment, nullptr};
    QWidget& view = Find<QWidget>(editor, "imgPhoto");
};

TEST_P(MarksTest, RectanglesFollowTheHandToThePixel)
{
    struct Case {
        const char* name;
        QPointF grip;
    };

    // The rectangle begins in the middle, at 176,118 with 48 x 64 pixels.
    const Case cases[] = {{"bottom", {200, 182}}, {"bottom left", {176, 182}}, {"bottom right", {224, 182}},
                          {"left", {176, 150}},   {"move", {200, 150}},        {"right", {224, 150}},
                          {"top", {200, 118}},    {"top left", {176, 118}},    {"top right", {224, 118}}};
    Press(editor, "optRectangle");
    for (const auto& [name, grip] : cases) {
        Press(editor, "cmdShowPointer");
        Drag(view, size, grip, grip + QPointF(20, 10));
        enter(name);
    }
    Press(editor, "cmdShowPointer");
    Drag(view, size, {200, 150}, {900, -900});
    enter("beyond");
    const QStringList expected = {"beyond 352,0 48x64",         "bottom 176,118 48x74", "bottom left 196,118 28x74",
                                  "bottom right 176,118 68x74", "left 196,118 28x64",   "move 196,128 48x64",
                                  "right 176,118 68x64",        "top 176,128 48x54",    "top left 196,128 28x54",
                                  "top right 176,128 68x54"};
    EXPECT_EQ(storedMarks(), expected);

    editor.showRecord(connection, 1);
    Find<QListWidget>(editor, "hfgPersons").setCurrentRow(1);
    const QPointF corner = InView(view, size, {176, 118}) * view.devicePixelRatioF();
    EXPECT_EQ(view.grab().toImage().pixelColor(corner.toPoint()), QColor(Qt::blue));
}

TEST_P(MarksTest, KeysMoveAndResizeThePointerAndCancelIt)
{
    const auto key = [this](Qt::Key which, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&view, which, modifiers);
    };
    Press(editor, "optRectangle");
    Press(editor, "cmdShowPointer");
    key(Qt::Key_Right);
    key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Left, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier | Qt::ControlModifier);
    enter("Ida");
    Press(editor, "cmdShowPointer");
    Type(editor, "txtName", "Nobody");
    key(Qt::Key_Escape);
    EXPECT_EQ(Find<QLineEdit>(editor, "txtName").text(), "");
    EXPECT_FALSE(Find<QWidget>(editor, "cmdHidePointer").isEnabled());
    EXPECT_EQ(storedMarks(), QStringList("Ida 177,128 47x74"));
}

TEST_P(MarksTest, ArrowsPointWhereTheyAreDropped)
{
    Press(editor, "optArrow");
    Press(editor, "cmdShowPointer");
    Drag(view, size, {100, 80}, {120, 70});
    enter("Ida");
    Find<QListWidget>(editor, "hfgPersons").setCurrentRow(0);
    Press(editor, "cmdEditName");
    QTest::keyClick(&view, Qt::Key_Up);
    enter("Ida Root");
    EXPECT_EQ(storedMarks(), QStringList("Ida Root 120,69 0x0"));
    editor.showRecord(connection, 1);
    QTest::mouseClick(&view, Qt::LeftButton, {}, InView(view, size, {122, 71}).toPoint());
    EXPECT_EQ(CurrentRow(editor, "hfgPersons"), 0);
}

INSTANTIATE_TEST_SUITE_P(AtScale, MarksTest, testing::Values(0.5, 1, 2));

} // namespace
