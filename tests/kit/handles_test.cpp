#include "map_surround/kit/handles.h"

#include <gtest/gtest.h>

#include "kit/pulls.h"
#include "map_surround/frame.h"

namespace {

using namespace map_surround::kit;

const CBoundingBox kExtent(300.0, 300.0, 420.0, 360.0);

void ExpectExtent(const CBoundingBox& extent, const kit_tests::Edges& expected) {
    const CPoint2D corner = extent.TopLeft();
    EXPECT_DOUBLE_EQ(corner.x, expected.left);
    EXPECT_DOUBLE_EQ(corner.y, expected.top);
    EXPECT_DOUBLE_EQ(corner.x + extent.GetWidth(), expected.right);
    EXPECT_DOUBLE_EQ(corner.y - extent.GetHeight(), expected.bottom);
}

TEST(Handles, StandWhereFramesFindThem) {
    CSurroundFrame frame;
    frame.SetExtent(kExtent);
    for (int handle = 0; handle < kHandles; ++handle) {
        SCOPED_TRACE(handle);
        ASSERT_EQ(frame.HitTest(HandleAt(kExtent, handle), 3.0, false), TopoOnHandle);
        EXPECT_EQ(frame.HitHandle, handle);
    }
}

TEST(Handles, PullTheirEdges) {
    for (const kit_tests::PullRow& row : kit_tests::kPulls) {
        SCOPED_TRACE(row.handle);
        const CPoint2D from = HandleAt(kExtent, row.handle);
        const CPoint2D to(from.x + 30.0, from.y + 20.0);
        ExpectExtent(Pulled(kExtent, row.handle, to, false), row.free);
        ExpectExtent(Pulled(kExtent, row.handle, to, true), row.proportioned);
    }
}

TEST(Handles, ThatAreNonePullNothing) {
    for (const int handle : {-1, kHandles}) {
        ExpectExtent(Pulled(kExtent, handle, {500.0, 500.0}, true), {300, 300, 420, 360});
    }
}

TEST(Handles, NeverTurnAnExtentInsideOut) {
    ExpectExtent(Pulled(kExtent, 3, {-500.0, 0.0}, false), {300, 300, 302, 360});
    ExpectExtent(Pulled(kExtent, 6, {900.0, 900.0}, false), {418, 358, 420, 360});
    ExpectExtent(Pulled(kExtent, 4, {-500.0, 900.0}, true), {300, 358, 304, 360});
    // Of no height there are no proportions to keep.
    const CBoundingBox line(300.0, 300.0, 420.0, 300.0);
    ExpectExtent(Pulled(line, 2, {450.0, 310.0}, true), {300, 300, 450, 310});
}

TEST(Handles, AreSquaresOnTheRectangle) {
    Gdiplus::Bitmap bitmap(60, 40);
    Gdiplus::Graphics graphics(&bitmap);
    DrawHandles(graphics, CRect(10, 10, 50, 30), 7, Gdiplus::Color(0xFF2A6FDB));
    const auto isFilled = [&bitmap](int x, int y) {
        Gdiplus::Color color;
        bitmap.GetPixel(x, y, &color);
        return color.GetValue() == 0xFF2A6FDB;
    };
    for (const int x : {10, 30, 50}) {
        for (const int y : {10, 20, 30}) {
            const bool isHandle = x != 30 || y != 20;
            EXPECT_EQ(isFilled(x - 3, y - 3), isHandle) << x << ", " << y;
            EXPECT_EQ(isFilled(x + 3, y + 3), isHandle) << x << ", " << y;
            EXPECT_FALSE(isFilled(x - 4, y)) << x << ", " << y;
            EXPECT_FALSE(isFilled(x, y + 4)) << x << ", " << y;
        }
    }
}

}  // namespace
