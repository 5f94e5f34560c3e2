#include <gtest/gtest.h>

#include <limits>

#include "element/no_numbers.h"
#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Lengths past 32 bits, worked by hand.

namespace {

using namespace recording;
using namespace scale_bar_test;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

// Beyond 32 bits a length is drawn at the limit. Half the height is 1073741823, so the
// rectangle runs from there above the centre to as much below it.
TEST(ScaleBarExtremes, LengthsStopAtTheLimits) {
    BarRow row;
    row.style = host::StyleOf<CScaleLine3>();
    row.size = kHighest;
    row.aspectRatio = 0.0f;
    row.mainCount = 1;
    row.subCount = -1;
    row.paperToScreen = 1e30;
    row.centre = CPoint(0, kHighest);
    const std::vector<std::string> drawing = DrawingOf(row);
    ASSERT_EQ(drawing.size(), 6u);
    // From 1073741824, two thirds of 2147483646 down: 2505397588, past the limit. The
    // first tick is an eighth right of 0, the second a limit's length further.
    EXPECT_EQ(drawing[0], DrawLine(BlackPen(), 268435455, kHighest, 268435455, kHighest));
    EXPECT_EQ(drawing[2], DrawLine(BlackPen(), kHighest, kHighest, kHighest, kHighest));
    EXPECT_EQ(drawing[4], DrawLine(BlackPen(), 268435455, kHighest, kHighest, kHighest));
}

// A bar 232 wide and 40 high about the corner of the plane begins there.
TEST(ScaleBarExtremes, RectanglesStopAtTheLimits) {
    BarRow row;
    row.style = host::StyleOf<CScaleLine3>();
    row.mainCount = 0;
    row.centre = CPoint(kLowest, kLowest);
    EXPECT_EQ(DrawingOf(row).front(),
              DrawLine(BlackPen(), kLowest + 5, kLowest + 26, kLowest + 5, kLowest + 40));
}

// Half the height is rounded up to 2^30, and twice that down to the limit again; two
// thirds of it below 2^30 - 1 is past it.
TEST(ScaleBarExtremes, BoxesStopAtTheLimits) {
    BarRow row;
    row.style = host::StyleOf<CScaleEquAltenate>();
    row.size = kHighest;
    row.aspectRatio = 0.0f;
    row.mainCount = 2;
    row.paperToScreen = 1e30;
    row.centre = CPoint(0, kHighest);
    const std::vector<std::string> drawing = DrawingOf(row);
    ASSERT_EQ(drawing.size(), 8u);
    // The first label and box, the label again and the box filled; the second label and
    // box; the last label and the unit name. The second box begins a limit's length
    // further.
    EXPECT_EQ(drawing[1],
              DrawRectangle(BlackPen(), 268435455, kHighest, kHighest, 715827882));
    EXPECT_EQ(drawing[3],
              FillRectangleI(BlackBrush(), 268435455, kHighest, kHighest, 715827882));
    EXPECT_EQ(drawing[5],
              DrawRectangle(BlackPen(), kHighest, kHighest, kHighest, 715827882));
}

TEST(ScaleBarExtremes, ScalesThatAreNoNumber) {
    BarRow row;
    row.mainCount = 0;
    row.scale = kNan;
    // The height is 0, and so is everything within it.
    EXPECT_EQ(
        DrawingOf(row).front(),
        DrawLine(BlackPen(std::numeric_limits<float>::quiet_NaN()), 200, 150, 200, 150));
    row.scale = 1.0;
    row.mainCount = 1;
    row.subCount = -1;
    row.paperToScreen = kNan;
    // The step is 0: both ticks stand at one place.
    const std::vector<std::string> drawing = DrawingOf(row);
    EXPECT_EQ(drawing[0], DrawLine(BlackPen(), 89, 156, 89, 170));
    EXPECT_EQ(drawing[2], drawing[0]);
}

}  // namespace
