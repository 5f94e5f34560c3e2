#include <gtest/gtest.h>

#include <limits>

#include "recording/lines.h"
#include "scale_bar/bar_row.h"

// Values that no host should give, and that must neither crash nor hang nor overflow.

namespace {

using namespace recording;
using namespace scale_bar_test;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kMost = std::numeric_limits<double>::max();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

constexpr double kNumbers[] = {0.0,  -1.0,      1e-300,     kLeast, 1e9,
                               1e30, kInfinity, -kInfinity, kNan,   -kMost};

/// The parts of the path through a style that any count reaches.
int CallsOf(const BarRow& row) { return static_cast<int>(DrawingOf(row).size()); }

TEST(ScaleBarExtremes, SizesScalesAndCentres) {
    for (const Style style : kStyles) {
        BarRow row;
        row.style = style;
        const int calls = CallsOf(row);
        for (const int size : {kLowest, -1, 0, kHighest}) {
            for (const double scale : kNumbers) {
                for (const int centre : {kLowest, 0, kHighest}) {
                    for (const float aspectRatio : {5.8f, 0.0f, -3.0f, 1e38f}) {
                        row.size = size;
                        row.scale = scale;
                        row.centre = CPoint(centre, centre);
                        row.aspectRatio = aspectRatio;
                        row.unitPosition = centre == 0 ? 1 : 0;
                        EXPECT_EQ(CallsOf(row), calls) << Describe(row);
                    }
                }
            }
        }
        row = BarRow();
        row.style = style;
        row.aspectRatio = std::numeric_limits<float>::quiet_NaN();
        EXPECT_EQ(CallsOf(row), calls);
    }
}

TEST(ScaleBarExtremes, DivisionLengths) {
    for (const Style style : kStyles) {
        BarRow row;
        row.style = style;
        const int calls = CallsOf(row);
        for (const double paperToScreen : kNumbers) {
            for (const double paperToData : {1e-8, 0.037, 1.0, 1e300, kMost}) {
                row.paperToScreen = paperToScreen;
                row.paperToData = paperToData;
                EXPECT_EQ(CallsOf(row), calls) << Describe(row);
            }
        }
    }
}

// Counts that are not drawn, for it would take too long: only what is computed of them.
TEST(ScaleBarExtremes, Counts) {
    for (const Style style : kStyles) {
        for (const double paperToScreen : {25.0, 0.0, 1e300, -kMost, kInfinity, kNan}) {
            for (const int count : {kLowest, -1}) {
                BarRow row;
                row.style = style;
                row.paperToScreen = paperToScreen;
                row.mainCount = count;
                row.subCount = kHighest;
                EXPECT_GT(CallsOf(row), 1) << Describe(row);
                row.mainCount = 3;
                row.subCount = count;
                EXPECT_GT(CallsOf(row), 5) << Describe(row);
            }
        }
    }
}

TEST(ScaleBarExtremes, AspectRatios) {
    for (const int size : {kLowest, -40, 0, 40, kHighest}) {
        for (const double screenToPaper : kNumbers) {
            for (const double paperToData : {1e-8, 1.0, kMost}) {
                for (const int count : {kLowest, 0, kHighest}) {
                    CScaleLine bar;
                    bar.SetSize(size);
                    bar.SetScreen2PaperByOneScale(screenToPaper);
                    bar.SetPaper2DataScale(paperToData);
                    bar.SetMainDivCount(count);
                    bar.SetAspectRatio(5.8f);
                    bar.ResetAspectRatio();
                    EXPECT_NE(bar.GetAspectRatio(), 5.8f);
                }
            }
        }
    }
}

// Beyond 32 bits a length is drawn at the limit. Half the height is 1073741823, so the
// rectangle runs from there above the centre to as much below it.
TEST(ScaleBarExtremes, LengthsStopAtTheLimits) {
    BarRow row;
    row.style = Style::Line3;
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
    row.style = Style::Line3;
    row.mainCount = 0;
    row.centre = CPoint(kLowest, kLowest);
    EXPECT_EQ(DrawingOf(row).front(),
              DrawLine(BlackPen(), kLowest + 5, kLowest + 26, kLowest + 5, kLowest + 40));
}

// Half the height is rounded up to 2^30, and twice that down to the limit again; two
// thirds of it below 2^30 - 1 is past it.
TEST(ScaleBarExtremes, BoxesStopAtTheLimits) {
    BarRow row;
    row.style = Style::EquAlternate;
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

// GDI+ itself is given what may reach it.
TEST(ScaleBarExtremes, GdiplusSurvives) {
    Surface surface;
    for (const Style style : kStyles) {
        const std::unique_ptr<CScaleBarBase> bar = NewBar(style);
        bar->SetMainDivCount(2);
        for (const int size : {kLowest, -40, 0, 40, kHighest}) {
            for (const double scale : kNumbers) {
                bar->SetSize(size);
                bar->Draw(surface.Graphics(), CPoint(200, 150), scale);
                bar->Draw(surface.Graphics(), CPoint(kLowest, kHighest), scale);
            }
        }
        bar->SetSize(40);
        for (const double paperToScreen : kNumbers) {
            bar->SetPaper2ScreenScale(paperToScreen);
            bar->Draw(surface.Graphics(), CPoint(200, 150), 1.0);
        }
    }
    EXPECT_TRUE(surface.WorldTransform() == (std::vector<float>{1, 0, 0, 1, 0, 0}));
}

}  // namespace
