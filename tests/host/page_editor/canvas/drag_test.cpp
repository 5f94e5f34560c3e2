#include "page_editor/canvas/drag.h"

#include <gmock/gmock.h>

#include "page/document/page_text.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using editor_tests::ExpectBox;
using ::testing::ElementsAre;

/// Two north arrows far from each other and from the lines of the sheet.
class Dragging : public EditorTest {
protected:
    Dragging() {
        Add("north-arrow-four", {100.0, 100.0, 200.0, 200.0});
        Add("north-arrow-one", {700.0, 600.0, 760.0, 660.0});
    }
};

TEST_F(Dragging, MovesAndShowsEveryStep) {
    Press(CPoint2D(150.0, 150.0));
    for (const double x : {170.0, 250.0, 420.0}) {
        MoveTo(CPoint2D(x, 223.0));
        EXPECT_TRUE(canvas.IsDragging());
        ExpectImageIsThePage();
    }
    EXPECT_EQ(document.UndoLabel(), "Place");  // no command until it ends
    Release(CPoint2D(420.0, 223.0));
    EXPECT_EQ(document.UndoLabel(), "Move");
    ExpectBox(BoxOf(0), {370.0, 173.0, 470.0, 273.0});
    Command("undo");
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
    ExpectImageIsThePage();
    Command("redo");
    ExpectBox(BoxOf(0), {370.0, 173.0, 470.0, 273.0});
    ExpectImageIsThePage();
}

TEST_F(Dragging, MovesByWholeUnitsUnlessFree) {
    canvas.SetZoom(2.0);
    DragTo(CPoint2D(150.0, 150.0), CPoint2D(187.5, 223.25));
    ExpectBox(BoxOf(0), {138.0, 173.0, 238.0, 273.0});
    DragTo(CPoint2D(150.0, 180.0), CPoint2D(150.5, 190.0), Qt::AltModifier);
    ExpectBox(BoxOf(0), {138.5, 183.0, 238.5, 283.0});
}

TEST_F(Dragging, EndsWhereTheButtonWasLetGoUnseen) {
    Press(CPoint2D(150.0, 150.0));
    MoveTo(CPoint2D(187.0, 223.0));
    Hover(CPoint2D(400.0, 400.0));
    EXPECT_FALSE(canvas.IsDragging());
    ExpectBox(BoxOf(0), {137.0, 173.0, 237.0, 273.0});
    EXPECT_EQ(document.UndoLabel(), "Move");
    ExpectImageIsThePage();
}

TEST_F(Dragging, MovesAllThatAreSelected) {
    Click(CPoint2D(150.0, 150.0));
    Click(CPoint2D(730.0, 630.0), Qt::ShiftModifier);
    DragTo(CPoint2D(150.0, 150.0), CPoint2D(160.0, 130.0), Qt::AltModifier);
    ExpectBox(BoxOf(0), {110.0, 80.0, 210.0, 180.0});
    ExpectBox(BoxOf(1), {710.0, 580.0, 770.0, 640.0});
    ExpectImageIsThePage();
}

TEST_F(Dragging, IsNoDragForATremblingHand) {
    Press(CPoint2D(150.0, 150.0));
    MoveTo(CPoint2D(151.0, 151.0));
    Release(CPoint2D(151.0, 151.0));
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
    EXPECT_EQ(document.UndoLabel(), "Place");
}

TEST_F(Dragging, IsGivenUpByEscape) {
    Press(CPoint2D(150.0, 150.0));
    MoveTo(CPoint2D(400.0, 400.0));
    Key(Qt::Key_Escape);
    EXPECT_FALSE(canvas.IsDragging());
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
    ExpectImageIsThePage();
    Release(CPoint2D(400.0, 400.0));
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
    EXPECT_THAT(document.Selection(), ElementsAre(0));
}

TEST_F(Dragging, IsGivenUpByAnyCommand) {
    Press(CPoint2D(150.0, 150.0));
    MoveTo(CPoint2D(400.0, 400.0));
    Command("delete");
    MoveTo(CPoint2D(500.0, 400.0));
    Release(CPoint2D(500.0, 400.0));
    EXPECT_EQ(document.Count(), 1u);
    Command("undo");
    ExpectBox(BoxOf(0), {100.0, 100.0, 200.0, 200.0});
    ExpectImageIsThePage();
}

TEST_F(Dragging, IsDrawnToLines) {
    const double middle = document.Page().Width() / 2.0;
    const struct {
        const char* what;
        CPoint2D by;    // the move
        CPoint2D left;  // where the lower left corner is then
    } rows[] = {
        {"the left of the sheet", {-96.0, 100.0}, {0.0, 200.0}},
        {"its left to the left of the other", {597.0, 100.0}, {700.0, 200.0}},
        {"its right to the left of the other", {504.0, 100.0}, {600.0, 200.0}},
        {"its middle to that of the sheet", {415.0, 100.0}, {middle - 50.0, 200.0}},
        {"its top to the bottom of the other", {100.0, 403.0}, {200.0, 500.0}},
        {"nothing", {300.0, 100.0}, {400.0, 200.0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        DragTo(CPoint2D(150.0, 150.0), CPoint2D(150.0 + row.by.x, 150.0 + row.by.y));
        EXPECT_NEAR(BoxOf(0).left, row.left.x, 1e-6);
        EXPECT_NEAR(BoxOf(0).bottom, row.left.y, 1e-6);
        Command("undo");
        DragTo(CPoint2D(150.0, 150.0), CPoint2D(150.0 + row.by.x, 150.0 + row.by.y),
               Qt::AltModifier);
        EXPECT_NEAR(BoxOf(0).left, 100.0 + row.by.x, 1e-6);
        Command("undo");
    }
}

TEST_F(Dragging, OffTheRangeOfPageFilesIsRefused) {
    const std::string before = host::WritePage(document.Page(), {});
    DragTo(CPoint2D(150.0, 150.0), CPoint2D(5.0e6, 150.0));
    EXPECT_EQ(host::WritePage(document.Page(), {}), before);
    EXPECT_THAT(LastFailure(), ::testing::HasSubstr("left"));
    ExpectImageIsThePage();
}

}  // namespace
