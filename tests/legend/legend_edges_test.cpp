// Lengths at the limits of their types.

#include <gtest/gtest.h>

#include <limits>

#include "legend/fake_sources.h"
#include "legend/scripted_ink.h"
#include "map_surround/legend.h"
#include "recording/expect.h"
#include "recording/lines.h"

namespace {

using fakes::Raster;
using namespace recording;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(LegendEdges, LengthsBeyondTheLimitStayAtIt) {
    const struct {
        CPoint centre;
        float left, top;
    } rows[] = {
        {CPoint(kLeast, kLeast), -2147483648.0f, -2147483648.0f},
        {CPoint(-2000000000, 2000000000), -2147483648.0f, 1500000000.0f},
    };
    for (const auto& row : rows) {
        CMapLegend legend;
        legend.SetSize(1000000000);
        legend.SetAspectRatio(1.0f);
        Surface surface;
        Recording recording(Mode::RecordOnly);
        legend.Draw(surface.Graphics(), row.centre, 1.0);
        EXPECT_TRUE(Equal(
            {{"title", DrawString("", "null", row.left, row.top, BrushLook(0xFF000000))}},
            recording.Drawing()));
    }
}

TEST(LegendEdges, HugeInkGivesTheLargestSize) {
    Raster rgb(L"rgb.tif", DisplayRGB);
    CMapLegend legend;
    legend.SetTitleValue(L"Legend");
    legend.SetDataSouce({&rgb});
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, [](const std::string&, const std::string&, float) {
        return ink::Size{kMost, kMost};
    });
    legend.ResetAspectRatio();
    EXPECT_EQ(legend.GetSize(), kMost);
    // Three samples, the widest of all, over the height.
    EXPECT_EQ(legend.GetAspectRatio(),
              static_cast<float>(3 * std::int64_t{kMost}) / static_cast<float>(kMost));
}

TEST(LegendEdges, AHugeTitleAloneGivesTheLargestSize) {
    CMapLegend legend;
    legend.SetTitleValue(L"T");
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, ink::Of({{"T", {10, kMost - 5}}}));
    legend.ResetAspectRatio();
    // 24 below the title, and 12 less for there is no source: past the limit by 7.
    EXPECT_EQ(legend.GetSize(), kMost);
}

// Thrice 16777217 is 50331652 as a float, and a third of that 16777218, where the width
// of the sample itself would be 16777216.
TEST(LegendEdges, ASwatchIsAThirdOfTheLeastWidthAsAFloat) {
    Raster rgb(L"", DisplayRGB);
    CMapLegend legend;
    legend.SetDataSouce({&rgb});
    Surface surface;
    Recording recording(Mode::RecordOnly);
    // A row of 140, three swatches of 84 and 24 + 36 of gaps, then 60 of the title: 512.
    ink::Script(recording, ink::Of({{"Band_1", {16777217, 140}}, {"T", {1, 60}}}));
    legend.SetTitleValue(L"T");
    legend.ResetAspectRatio();
    ASSERT_EQ(legend.GetSize(), 512);
    legend.SetAspectRatio(0.0f);
    recording.Clear();
    legend.Draw(surface.Graphics(), CPoint(0, 256), 1.0);
    // Below the title, drawn as high as it was measured, two gaps, the row and a gap.
    EXPECT_EQ(
        recording.Drawing().at(2),
        FillRectangle(BrushLook(0xFFFF0000), 0, 60 + 24 + 140 + 12, 16777218.0f, 84));
}

/// So does the time, whatever the number of classes.
TEST(LegendEdges, CallsGrowInProportionToTheClasses) {
    const auto calls = [](int classes, bool draw) {
        Raster raster(L"classes", DisplayClassified);
        raster.table.items.assign(static_cast<std::size_t>(classes), {L"class", 1, 2, 3});
        CMapLegend legend;
        legend.SetDataSouce({&raster});
        Surface surface;
        Recording recording(Mode::Silent);
        if (draw) {
            legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
        } else {
            legend.ResetAspectRatio();
        }
        return recording.Count();
    };
    // Reset, size, style, outline, bounds; two colours, swatch, label.
    EXPECT_EQ(calls(10000, false) - calls(100, false), 9900 * 5);
    EXPECT_EQ(calls(10000, true) - calls(100, true), 9900 * 4);
}

}  // namespace
