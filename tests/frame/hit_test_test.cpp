#include <gtest/gtest.h>

#include <iterator>
#include <utility>

#include "element/no_numbers.h"
#include "map_surround/frame.h"

namespace {

struct HitRow {
    const char* name;
    double x;
    double y;
    double tolerance;
    bool insideOnly;
    SpatialTopoRelation relation;
    int handle;
};

void Ask(CFrameBase& frame, const HitRow* rows, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const HitRow& row = rows[i];
        frame.HitHandle = 99;
        EXPECT_EQ(frame.HitTest(CPoint2D(row.x, row.y), row.tolerance, row.insideOnly),
                  row.relation)
            << row.name;
        EXPECT_EQ(frame.HitHandle, row.handle) << row.name;
    }
}

// From (10, 20) to (110, 70): the middles are x 60 and y 45.
TEST(HitTest, FindsTheHandlesFromInside) {
    const HitRow rows[] = {
        {"top left", 10, 70, 0, false, TopoOnHandle, 0},
        {"top middle", 60, 70, 0, false, TopoOnHandle, 1},
        {"top right", 110, 70, 0, false, TopoOnHandle, 2},
        {"right middle", 110, 45, 0, false, TopoOnHandle, 3},
        {"bottom right", 110, 20, 0, false, TopoOnHandle, 4},
        {"bottom middle", 60, 20, 0, false, TopoOnHandle, 5},
        {"bottom left", 10, 20, 0, false, TopoOnHandle, 6},
        {"left middle", 10, 45, 0, false, TopoOnHandle, 7},

        {"at the tolerance of top left", 13, 67, 3, false, TopoOnHandle, 0},
        {"past it in x", 13.001, 67, 3, false, TopoWithin, -1},
        {"past it in y", 13, 66.999, 3, false, TopoWithin, -1},
        {"left of top middle", 57, 67, 3, false, TopoOnHandle, 1},
        {"right of top middle", 63, 67, 3, false, TopoOnHandle, 1},
        {"past it on the left", 56.999, 67, 3, false, TopoWithin, -1},
        {"past it on the right", 63.001, 67, 3, false, TopoWithin, -1},
        {"below it", 60, 66.999, 3, false, TopoWithin, -1},
        {"at the tolerance of top right", 107, 67, 3, false, TopoOnHandle, 2},
        {"past it", 106.999, 67, 3, false, TopoWithin, -1},
        {"above right middle", 107, 48, 3, false, TopoOnHandle, 3},
        {"below right middle", 107, 42, 3, false, TopoOnHandle, 3},
        {"past it upwards", 107, 48.001, 3, false, TopoWithin, -1},
        {"past it downwards", 107, 41.999, 3, false, TopoWithin, -1},
        {"at the tolerance of bottom right", 107, 23, 3, false, TopoOnHandle, 4},
        {"past it", 107, 23.001, 3, false, TopoWithin, -1},
        {"at the tolerance of bottom middle", 63, 23, 3, false, TopoOnHandle, 5},
        {"past it", 60, 23.001, 3, false, TopoWithin, -1},
        {"at the tolerance of bottom left", 13, 23, 3, false, TopoOnHandle, 6},
        {"past it", 13.001, 23, 3, false, TopoWithin, -1},
        {"at the tolerance of left middle", 13, 48, 3, false, TopoOnHandle, 7},
        {"past it", 13.001, 45, 3, false, TopoWithin, -1},

        {"the middle", 60, 45, 3, false, TopoWithin, -1},
        {"the middle, all handles near", 60, 45, 50, false, TopoOnHandle, 0},
        {"right of it, top left is far", 60.5, 45, 50, false, TopoOnHandle, 1},
        {"far right, top middle is far", 110, 45, 49.999, false, TopoOnHandle, 2},
        {"far right and low", 110, 20, 49.999, false, TopoOnHandle, 3},
        {"far left and low", 10, 20, 49.999, false, TopoOnHandle, 6},
        {"low", 60, 20, 49.999, false, TopoOnHandle, 5},

        {"inside only, on a handle", 10, 70, 3, true, TopoWithin, -1},
        {"inside only, in the middle", 60, 45, 3, true, TopoWithin, -1},
        {"inside only, outside", 9.999, 70, 3, true, TopoDisjoint, -1},

        {"outside top left", 9.999, 70, 3, false, TopoDisjoint, -1},
        {"above top middle", 60, 70.001, 3, false, TopoDisjoint, -1},
        {"outside right middle", 110.001, 45, 3, false, TopoDisjoint, -1},
        {"below bottom right", 110, 19.999, 3, false, TopoDisjoint, -1},

        {"negative tolerance on a handle", 10, 70, -1, false, TopoWithin, -1},
        {"tolerance of no number", 10, 70, kNan, false, TopoWithin, -1},
        {"minus zero is zero", 10, 70, -0.0, false, TopoOnHandle, 0},
        {"endless tolerance", 60, 45, kInfinity, false, TopoOnHandle, 0},
        {"endless tolerance, outside", 0, 0, kInfinity, false, TopoDisjoint, -1},
        {"a point of no number", kNan, 45, 3, false, TopoDisjoint, -1},
        {"an endless point", kInfinity, 45, kInfinity, false, TopoDisjoint, -1},
    };
    CFrameBase frame;
    frame.SetExtent(CBoundingBox(10, 20, 110, 70));
    Ask(frame, rows, std::size(rows));
    CSurroundFrame surround;
    surround.SetExtent(CBoundingBox(10, 20, 110, 70));
    Ask(surround, rows, std::size(rows));
}

TEST(HitTest, TakesTheFirstHandleOfANarrowFrame) {
    const HitRow rows[] = {
        {"on top left and top middle", 1, 100, 5, false, TopoOnHandle, 0},
        {"near all handles of the top", 2, 98, 5, false, TopoOnHandle, 0},
        {"near all handles of the middle", 2, 50, 5, false, TopoOnHandle, 3},
        {"near all handles of the bottom", 2, 2, 5, false, TopoOnHandle, 4},
        {"near bottom middle and left", 0, 0, 2, false, TopoOnHandle, 5},
    };
    CFrameBase frame;
    frame.SetExtent(CBoundingBox(0, 0, 4, 100));
    Ask(frame, rows, std::size(rows));
}

TEST(HitTest, AnswersForStrangeExtents) {
    const CBoundingBox point(5, 5, 5, 5);
    const CBoundingBox noNumber(kNan, 0, 9, 9);
    // Each handle is at an infinity or nowhere.
    const CBoundingBox endless(-kInfinity, -kInfinity, kInfinity, kInfinity);
    const CBoundingBox wide(-1.7e308, 0, 1.7e308, 10);  // wider than a double
    const std::pair<CBoundingBox, HitRow> rows[] = {
        {CBoundingBox(), {"default", 0, 0, kInfinity, false, TopoDisjoint, -1}},
        {CBoundingBox(), {"default, its edge", 1, 1, 9, true, TopoDisjoint, -1}},
        {point, {"a point", 5, 5, 0, false, TopoOnHandle, 0}},
        {noNumber, {"no number", 5, 5, 9, false, TopoDisjoint, -1}},
        {endless, {"endless", 0, 0, 1e300, false, TopoWithin, -1}},
        {endless, {"endless, inside only", 0, 0, 0, true, TopoWithin, -1}},
        {wide, {"wide", 0, 5, 9, false, TopoWithin, -1}},
        {CBoundingBox(9, 0, 0, 9), {"other corners", 0, 9, 1, false, TopoOnHandle, 0}},
    };
    for (const auto& [extent, row] : rows) {
        CFrameBase frame;
        frame.SetExtent(extent);
        Ask(frame, &row, 1);
    }
}

TEST(SetOffset, MovesTheExtent) {
    struct Move {
        double dx;
        double dy;
        double left;
        double top;
    };
    CFrameBase base;
    CSurroundFrame surround;
    for (CFrameBase* frame : {&base, static_cast<CFrameBase*>(&surround)}) {
        frame->SetExtent(CBoundingBox(10, 20, 110, 70));
        // Each on top of the last.
        for (const Move& move :
             {Move{5, -3, 15, 67}, Move{0, 0, 15, 67}, Move{-0.5, 0.25, 14.5, 67.25}}) {
            frame->SetOffset(move.dx, move.dy);
            const CBoundingBox moved = frame->GetExtent();
            EXPECT_EQ(moved.TopLeft().x, move.left);
            EXPECT_EQ(moved.TopLeft().y, move.top);
            EXPECT_EQ(moved.GetWidth(), 100);
            EXPECT_EQ(moved.GetHeight(), 50);
        }
        frame->HitHandle = 4;
        frame->SetOffset(1, 1);
        EXPECT_EQ(frame->HitHandle, 4) << "moving tests nothing";
    }
}

TEST(SetOffset, LeavesAnEmptyExtentEmpty) {
    for (const double offset : {0.0, 1.0, 1e300, kInfinity, kNan}) {
        CFrameBase frame;
        frame.SetOffset(offset, offset);
        EXPECT_EQ(frame.GetExtent().GetWidth(), 0);
        EXPECT_EQ(frame.HitTest(CPoint2D(offset, offset), 1, false), TopoDisjoint)
            << offset;
    }
}

}  // namespace
