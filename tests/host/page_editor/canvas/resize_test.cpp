#include "page_editor/editing/resize.h"

#include "page/made_raster.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using editor_tests::ExpectBox;
using host::Box;

constexpr host::Box kBox = {300.0, 300.0, 420.0, 360.0};  // 120 by 60

class Resizing : public EditorTest {
protected:
    void Pull(std::size_t item, int handle, double dx, double dy,
              Qt::KeyboardModifiers modifiers = Qt::AltModifier) {
        document.Select({item});
        const CPoint2D from = page_editor::HandleAt(BoxOf(item), handle);
        DragTo(from, CPoint2D(from.x + dx, from.y + dy), modifiers);
    }
};

struct PullRow {
    int handle;
    host::Box free;          // pulled by 30 to the right and 20 upwards
    host::Box proportioned;  // the same where proportions are kept
};

// Free: the edges that the handle has follow. Kept: the larger of the two pulls, as a
// factor, and the opposite corner, or middle of an edge, stays.
const PullRow kPulls[] = {
    {0, {330, 300, 420, 380}, {260, 300, 420, 380}},  // 80 / 60 high
    {1, {300, 300, 420, 380}, {280, 300, 440, 380}},
    {2, {300, 300, 450, 380}, {300, 300, 460, 380}},
    {3, {300, 300, 450, 360}, {300, 292.5, 450, 367.5}},  // 150 / 120 wide
    {4, {300, 320, 450, 360}, {300, 285, 450, 360}},
    {5, {300, 320, 420, 360}, {320, 320, 400, 360}},  // 40 / 60 high
    {6, {330, 320, 420, 360}, {330, 315, 420, 360}},  // 90 / 120 wide
    {7, {330, 300, 420, 360}, {330, 307.5, 420, 352.5}},
};

TEST_F(Resizing, PullsEachHandleOfAFreeFrame) {
    const std::size_t arrow = Add("north-arrow-four", kBox);
    for (const PullRow& row : kPulls) {
        SCOPED_TRACE(row.handle);
        Pull(arrow, row.handle, 30.0, 20.0);
        ExpectBox(BoxOf(arrow), row.free);
        EXPECT_EQ(document.UndoLabel(), "Resize");
        ExpectImageIsThePage();
        Command("undo");
        ExpectBox(BoxOf(arrow), kBox);
        ExpectImageIsThePage();
    }
}

TEST_F(Resizing, KeepsTheProportionsOfWhatHasThem) {
    for (const char* type : {"title", "scale-bar-line", "legend"}) {
        const std::size_t item = Add(type, kBox);
        for (const PullRow& row : kPulls) {
            SCOPED_TRACE(type + std::to_string(row.handle));
            Pull(item, row.handle, 30.0, 20.0);
            ExpectBox(BoxOf(item), row.proportioned);
            ExpectImageIsThePage();
            Command("undo");
            ExpectBox(BoxOf(item), kBox);
        }
        document.Select({item});
        Command("delete");
    }
}

TEST_F(Resizing, ShiftTurnsTheProportionsRound) {
    const std::size_t arrow = Add("north-arrow-four", kBox);
    Pull(arrow, 2, 30.0, 20.0, Qt::AltModifier | Qt::ShiftModifier);
    ExpectBox(BoxOf(arrow), kPulls[2].proportioned);
    const std::size_t title = Add("title", kBox);
    Pull(title, 2, 30.0, 20.0, Qt::AltModifier | Qt::ShiftModifier);
    ExpectBox(BoxOf(title), kPulls[2].free);
}

TEST_F(Resizing, LetsTheElementGrow) {
    const std::size_t title = Add("title", kBox);
    const double size = std::get<double>(Value(title, "fontSize"));
    Pull(title, 2, 120.0, 60.0);
    EXPECT_NEAR(std::get<double>(Value(title, "fontSize")), 2.0 * size, 1e-6);
}

TEST_F(Resizing, ReadsAMapOnlyOnceItEnds) {
    WriteScene(folder.Path("scene.tif"), 120, 60);
    const std::size_t map =
        Add("map", kBox, {QString::fromStdString(folder.Path("scene.tif"))});
    document.Select({map});
    Press(CPoint2D(420.0, 300.0));
    MoveTo(CPoint2D(480.0, 270.0), Qt::AltModifier);
    ExpectBox(BoxOf(map), kBox);  // outlined
    Release(CPoint2D(480.0, 270.0), Qt::AltModifier);
    ExpectBox(BoxOf(map), {300.0, 270.0, 480.0, 360.0});
    ExpectImageIsThePage();
}

}  // namespace
