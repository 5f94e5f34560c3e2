#include "page_editor/editing/snap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using page_editor::NearestLine;
using ::testing::ElementsAre;

TEST(Snap, HasTheEdgesAndMiddlesOfBoxes) {
    page_editor::SnapLines lines;
    lines.Add({10.0, 20.0, 30.0, 60.0});
    EXPECT_THAT(lines.x, ElementsAre(10.0, 20.0, 30.0));
    EXPECT_THAT(lines.y, ElementsAre(20.0, 40.0, 60.0));
}

TEST(Snap, DrawsToTheNearestLine) {
    const auto snap = NearestLine({103.0, 148.5}, {100.0, 150.0}, 5.0);
    ASSERT_TRUE(snap);
    EXPECT_EQ(snap->offset, 1.5);
    EXPECT_EQ(snap->line, 150.0);
}

TEST(Snap, LeavesWhatIsFurtherThanTheTolerance) {
    EXPECT_TRUE(NearestLine({105.0}, {100.0}, 5.0));
    EXPECT_FALSE(NearestLine({105.1}, {100.0}, 5.0));
    EXPECT_FALSE(NearestLine({105.0}, {}, 5.0));
}

}  // namespace
