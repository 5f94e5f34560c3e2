#include "page_editor/canvas/page_canvas.h"

#include <gmock/gmock.h>

#include "map_surround/title.h"
#include "page/element_of.h"
#include "page_editor/editor_fixture.h"

namespace {

using editor_tests::EditorTest;
using host::Box;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Two north arrows and, over both, an empty frame.
class PageCanvas : public EditorTest {
protected:
    PageCanvas() {
        Add("north-arrow-four", {100.0, 100.0, 200.0, 200.0});
        Add("north-arrow-one", {300.0, 100.0, 400.0, 200.0});
        Add("frame", {50.0, 50.0, 500.0, 300.0});
    }
};

TEST_F(PageCanvas, SelectsByClick) {
    Click(CPoint2D(150.0, 150.0));
    EXPECT_THAT(document.Selection(), ElementsAre(0));
    Click(CPoint2D(350.0, 150.0), Qt::ShiftModifier);
    EXPECT_THAT(document.Selection(), ElementsAre(0, 1));
    Click(CPoint2D(150.0, 150.0), Qt::ControlModifier);
    EXPECT_THAT(document.Selection(), ElementsAre(1));
    Click(CPoint2D(900.0, 700.0));
    EXPECT_THAT(document.Selection(), IsEmpty());
    Click(CPoint2D(350.0, 150.0));  // through the frame
    EXPECT_THAT(document.Selection(), ElementsAre(1));
    Click(CPoint2D(250.0, 250.0));
    EXPECT_THAT(document.Selection(), ElementsAre(2));
}

TEST_F(PageCanvas, SelectsWithinARectangle) {
    DragTo(CPoint2D(20.0, 20.0), CPoint2D(250.0, 250.0));
    EXPECT_THAT(document.Selection(), ElementsAre(0));
    EXPECT_FALSE(canvas.IsDragging());
}

TEST_F(PageCanvas, ShowsWhatThePointerWouldDo) {
    Click(CPoint2D(150.0, 150.0));
    const auto cursorAt = [this](CPoint2D point) {
        MoveTo(point);
        return canvas.viewport()->cursor().shape();
    };
    EXPECT_EQ(cursorAt(CPoint2D(150.0, 150.0)), Qt::SizeAllCursor);
    EXPECT_EQ(cursorAt(CPoint2D(350.0, 150.0)), Qt::ArrowCursor);
    EXPECT_EQ(cursorAt(CPoint2D(100.0, 200.0)), Qt::SizeFDiagCursor);
    EXPECT_EQ(cursorAt(CPoint2D(150.0, 200.0)), Qt::SizeVerCursor);
    EXPECT_EQ(cursorAt(CPoint2D(200.0, 200.0)), Qt::SizeBDiagCursor);
    EXPECT_EQ(cursorAt(CPoint2D(200.0, 150.0)), Qt::SizeHorCursor);
    // Handles are caught from a little outside, too.
    EXPECT_EQ(cursorAt(CPoint2D(203.0, 97.0)), Qt::SizeFDiagCursor);
    EXPECT_EQ(cursorAt(CPoint2D(210.0, 97.0)), Qt::ArrowCursor);
}

TEST_F(PageCanvas, TellsOfWhatIsNotDrawnWholeAsLongAsItIsNot) {
    window.SetSheet("200x150");
    const std::size_t title = Add("title", {100.0, 400.0, 400.0, 440.0});
    const auto setSize = [&](double size) {
        document.ChangeItems({title}, "Size", [size](host::PageItem& item) {
            host::ElementOf<CMapTitle>(item)->SetFontSize(size);
        });
    };
    const auto told = [this] {
        return window.Undrawn().isVisible() ? window.Undrawn().Text().toStdString() : "";
    };
    canvas.SetZoom(4.0);
    setSize(20000.0);
    const std::string line =
        "title: is 80000 pixels high, and texts of at most 65535 are drawn";
    EXPECT_EQ(told(), line);
    document.Select({0});
    Key(Qt::Key_Left);  // draws the surroundings of another
    EXPECT_EQ(told(), line);
    setSize(20.0);
    EXPECT_EQ(told(), "");
    Command("undo");
    EXPECT_EQ(told(), line);
    canvas.SetZoom(1.0);
    EXPECT_EQ(told(), "");
    Add("scale-bar-alternating", {100.0, 20.0, 400.0, 60.0});
    canvas.SetZoom(0.05);  // too small for its text, but no failure of the page
    EXPECT_EQ(told(), "");
}

TEST_F(PageCanvas, DrawsThePageAtEveryZoom) {
    EXPECT_EQ(canvas.Image().size(), QSize(1123, 794));
    for (const double zoom : {0.3, 0.77, 1.0, 1.6}) {
        canvas.SetZoom(zoom);
        EXPECT_EQ(canvas.Zoom(), zoom);
        ExpectImageIsThePage();
    }
}

TEST_F(PageCanvas, ZoomsNeitherTooFarInNorOut) {
    canvas.SetZoom(1.0e9);
    EXPECT_GT(canvas.Zoom(), 2.0);
    EXPECT_LE(1.0 * canvas.Image().width() * canvas.Image().height(), 48.1e6);
    canvas.SetZoom(0.0);
    EXPECT_GE(canvas.Image().width(), 16);
    canvas.SetZoom(-1.0);
    EXPECT_GE(canvas.Image().width(), 16);
}

TEST_F(PageCanvas, ZoomsAboutThePointer) {
    canvas.SetZoom(2.0);
    const QPointF point(300.0, 200.0);
    const CPoint2D before = canvas.CurrentView().ToPage(point);
    TurnTheWheel(*canvas.viewport(), point, true, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(canvas.Zoom(), 2.4);
    const CPoint2D after = canvas.CurrentView().ToPage(point);
    EXPECT_NEAR(after.x, before.x, 1.0);
    EXPECT_NEAR(after.y, before.y, 1.0);
}

TEST_F(PageCanvas, ShowsTheWholeSheet) {
    canvas.SetZoom(3.0);
    canvas.ZoomToFit();
    const QRectF sheet = canvas.CurrentView().ToWidget(
        host::Box{0.0, 0.0, document.Page().Width(), document.Page().Height()});
    EXPECT_TRUE(QRectF(canvas.viewport()->rect()).contains(sheet));
    EXPECT_GT(sheet.width(), canvas.viewport()->width() * 0.8);
}

}  // namespace
