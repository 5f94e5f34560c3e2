#include "map_surround/kit/handles.h"

#include <gtest/gtest.h>

#include "map_surround/frame.h"

namespace {

using namespace map_surround::kit;

const CBoundingBox kExtent(300.0, 300.0, 420.0, 360.0);  // 120 by 60

struct Box {
    double left, bottom, right, top;
};

void ExpectExtent(const CBoundingBox& extent, const Box& expected) {
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

struct PullRow {
    int handle;
    Box free;          // pulled by 30 to the right and 20 upwards
    Box proportioned;  // the same where proportions are kept
};

// Free: the edges that the handle has follow. Kept: the larger of the two pulls, as a
// factor, and the opposite corner, or middle of an edge, stays.
const PullRow kRows[] = {
    {0, {330, 300, 420, 380}, {260, 300, 420, 380}},  // 80 / 60 high
    {1, {300, 300, 420, 380}, {280, 300, 440, 380}},
    {2, {300, 300, 450, 380}, {300, 300, 460, 380}},
    {3, {300, 300, 450, 360}, {300, 292.5, 450, 367.5}},  // 150 / 120 wide
    {4, {300, 320, 450, 360}, {300, 285, 450, 360}},
    {5, {300, 320, 420, 360}, {320, 320, 400, 360}},  // 40 / 60 high
    {6, {330, 320, 420, 360}, {330, 315, 420, 360}},  // 90 / 120 wide
    {7, {330, 300, 420, 360}, {330, 307.5, 420, 352.5}},
    {8, {300, 300, 420, 360}, {300, 300, 420, 360}},  // no handle
    {-1, {300, 300, 420, 360}, {300, 300, 420, 360}},
};

TEST(Handles, PullTheirEdges) {
    for (const PullRow& row : kRows) {
        SCOPED_TRACE(row.handle);
        const CPoint2D from = HandleAt(kExtent, row.handle);
        const CPoint2D to(from.x + 30.0, from.y + 20.0);
        ExpectExtent(Pulled(kExtent, row.handle, to, false), row.free);
        ExpectExtent(Pulled(kExtent, row.handle, to, true), row.proportioned);
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
