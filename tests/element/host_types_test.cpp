#include <gtest/gtest.h>

#include "element/no_numbers.h"
#include "host/device_geometry.h"
#include "host/raster_data.h"
#include "legend/fake_sources.h"

namespace {

TEST(HostTypes, ABoxSpansItsCornersInAnyOrder) {
    const struct {
        const char* name;
        CBoundingBox box;
        double left, top, width, height;
        bool empty;
    } rows[] = {
        {"default", CBoundingBox(), 0, 0, 0, 0, true},
        {"from bottom left", CBoundingBox(10, 20, 110, 70), 10, 70, 100, 50, false},
        {"from top left", CBoundingBox(10, 70, 110, 20), 10, 70, 100, 50, false},
        {"from bottom right", CBoundingBox(110, 20, 10, 70), 10, 70, 100, 50, false},
        {"from top right", CBoundingBox(110, 70, 10, 20), 10, 70, 100, 50, false},
        {"a point", CBoundingBox(5, 6, 5, 6), 5, 6, 0, 0, false},
        {"no left", CBoundingBox(kNan, 0, 9, 9), 0, 0, 0, 0, true},
        {"no bottom", CBoundingBox(0, kNan, 9, 9), 0, 0, 0, 0, true},
    };
    for (const auto& row : rows) {
        CBoundingBox box = row.box;
        EXPECT_EQ(box.TopLeft().x, row.left) << row.name;
        EXPECT_EQ(box.TopLeft().y, row.top) << row.name;
        EXPECT_EQ(box.GetWidth(), row.width) << row.name;
        EXPECT_EQ(box.GetHeight(), row.height) << row.name;
        EXPECT_NE(box.IsContain(CPoint2D(row.left, row.top)), row.empty) << row.name;

        box.OffsetBoundingBox(3.0, -4.0);
        EXPECT_EQ(box.TopLeft().x, row.empty ? 0.0 : row.left + 3.0) << row.name;
        EXPECT_EQ(box.TopLeft().y, row.empty ? 0.0 : row.top - 4.0) << row.name;
        EXPECT_EQ(box.GetWidth(), row.width) << row.name;
        EXPECT_EQ(box.GetHeight(), row.height) << row.name;
    }
}

TEST(HostTypes, AreNothingByDefault) {
    EXPECT_EQ(CPoint().x, 0);
    EXPECT_EQ(CPoint().y, 0);
    const CRect rect;
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.right, 0);
    EXPECT_EQ(rect.bottom, 0);
    EXPECT_EQ(CPoint2D().x, 0.0);
    EXPECT_EQ(CPoint2D().y, 0.0);
}

TEST(HostTypes, ASourceNeedNotKnowWhatTheLibraryNeverCalls) {
    fakes::Vector source;
    CGISDataSource& any = source;
    any.Reserved1();
    any.Reserved2();
    any.Reserved3();
    any.Reserved4();
    EXPECT_TRUE(any.IsAvailable());
}

}  // namespace
