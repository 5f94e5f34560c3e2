#include "page_editor/editing/resize.h"

#include "kit/pulls.h"
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

Box BoxOfEdges(const kit_tests::Edges& edges) {
    return {edges.left, edges.bottom, edges.right, edges.top};
}

TEST_F(Resizing, PullsEachHandleAndKeepsTheProportionsOfWhatHasThem) {
    for (const char* type : {"north-arrow-four", "title", "scale-bar-line", "legend"}) {
        const bool isFree = type == std::string("north-arrow-four");
        const std::size_t item = Add(type, kBox);
        for (const kit_tests::PullRow& row : kit_tests::kPulls) {
            SCOPED_TRACE(type + std::to_string(row.handle));
            Pull(item, row.handle, 30.0, 20.0);
            ExpectBox(BoxOf(item), BoxOfEdges(isFree ? row.free : row.proportioned));
            EXPECT_EQ(document.UndoLabel(), "Resize");
            ExpectImageIsThePage();
            Command("undo");
            ExpectBox(BoxOf(item), kBox);
        }
        // Shift turns it round.
        Pull(item, 2, 30.0, 20.0, Qt::AltModifier | Qt::ShiftModifier);
        ExpectBox(BoxOf(item), BoxOfEdges(isFree ? kit_tests::kPulls[2].proportioned
                                                 : kit_tests::kPulls[2].free));
        document.Select({item});
        Command("delete");
    }
}

TEST_F(Resizing, LetsTheElementGrow) {
    const std::size_t title = Add("title", kBox);
    const double size = Value<double>(title, "fontSize");
    Pull(title, 2, 120.0, 60.0);
    EXPECT_NEAR(Value<double>(title, "fontSize"), 2.0 * size, 1e-6);
}

TEST_F(Resizing, ReadsAMapOnlyOnceItEnds) {
    const std::size_t map = Add("map", kBox, {Scene()});
    document.Select({map});
    Press(CPoint2D(420.0, 300.0));
    MoveTo(CPoint2D(480.0, 270.0), Qt::AltModifier);
    ExpectBox(BoxOf(map), kBox);  // outlined
    Release(CPoint2D(480.0, 270.0), Qt::AltModifier);
    ExpectBox(BoxOf(map), {300.0, 270.0, 480.0, 360.0});
    ExpectImageIsThePage();
}

}  // namespace
