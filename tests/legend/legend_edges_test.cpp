// Values that no host should set, and GDI+ failing.

#include <gtest/gtest.h>

#include <cmath>
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
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNan = std::nan("");

struct Crowd {
    Raster rgb{L"植被.tif", DisplayRGB};
    Raster gray{L"elevation.tif", DisplayGray};
    Raster classes{L"", DisplayClassified};
    CMapLegend legend;

    Crowd() {
        classes.table.items = {{L"\xD800 lone", 1, 2, 3}, {L"", 4, 5, 6}};
        legend.SetTitleValue(L"Legend");
        legend.SetDataSouce({&rgb, nullptr, &gray, &classes});
    }
};

TEST(LegendEdges, AnySizeScaleAndCentreIsDrawn) {
    for (const int size : {kLeast, -1, 0, 1, kMost}) {
        for (const double scale : {0.0, -1.0, 1.0, 1e300, -1e300, kInfinity, kNan}) {
            for (const float aspect : {0.0f, -1.0f, 1e38f, std::nanf(""), HUGE_VALF}) {
                for (const CPoint centre : {CPoint(0, 0), CPoint(kMost, kLeast)}) {
                    Crowd crowd;
                    Surface surface;
                    Recording recording(Mode::RecordOnly);
                    ink::Script(recording, ink::Typical);
                    crowd.legend.ResetAspectRatio();
                    crowd.legend.SetSize(size);
                    crowd.legend.SetAspectRatio(aspect);
                    recording.Clear();
                    crowd.legend.Draw(surface.Graphics(), centre, scale);
                    // Title, 7 of the RGB source, 257 of the grey one, 5 of the classes.
                    EXPECT_EQ(recording.Drawing().size(), 1U + 7U + 257U + 5U);
                }
            }
        }
    }
}

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

TEST(LegendEdges, AnyInkAndAnyFontSizeIsMeasured) {
    for (const int width : {kLeast, -1, 0, kMost}) {
        for (const int height : {kLeast, -24, -1, 0, kMost}) {
            for (const float size : {-1.0f, 0.0f, 1e38f, HUGE_VALF, std::nanf("")}) {
                Crowd crowd;
                Surface surface;
                crowd.legend.SetTitleSize(size);
                crowd.legend.SetFileNameSize(size);
                crowd.legend.SetSizeAspect(size);
                Recording recording(Mode::RecordOnly);
                ink::Script(recording,
                            [&](const std::string&, const std::string&, float) {
                                return ink::Size{width, height};
                            });
                crowd.legend.ResetAspectRatio();
                crowd.legend.Draw(surface.Graphics(), CPoint(10, 10), 1.0);
            }
        }
    }
}

TEST(LegendEdges, HugeInkGivesTheLargestSize) {
    Crowd crowd;
    Recording recording(Mode::RecordOnly);
    ink::Script(recording, [](const std::string&, const std::string&, float) {
        return ink::Size{kMost, kMost};
    });
    crowd.legend.ResetAspectRatio();
    EXPECT_EQ(crowd.legend.GetSize(), kMost);
    // Three samples, the widest of all, over the height.
    EXPECT_EQ(crowd.legend.GetAspectRatio(),
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

/// GDI+ itself at work, which must survive what comes out of the layout.
TEST(LegendEdges, RealGdiplusTakesOddSizes) {
    for (const float size : {-3.0f, 0.0f, 0.01f, 15.0f, 400.0f}) {
        for (const double scale : {-1.0, 0.0, 0.01, 1.0, kNan}) {
            Crowd crowd;
            Surface surface;
            crowd.legend.SetTitleSize(size);
            crowd.legend.SetFileNameSize(size);
            crowd.legend.ResetAspectRatio();
            EXPECT_GE(crowd.legend.GetSize(), 12);
            crowd.legend.Draw(surface.Graphics(), CPoint(200, 150), scale);
        }
    }
}

TEST(LegendEdges, EveryCallMayFail) {
    Crowd crowd;
    Surface surface;
    Recording recording(Mode::RecordOnly);
    recording.FailCallsOf("");
    crowd.legend.ResetAspectRatio();
    // No ink: 24 for the title, 12 a source, entries of gaps alone, 12 less.
    EXPECT_EQ(crowd.legend.GetSize(), 24 + 3 * 12 + 36 + 12 + 24 - 12);
    EXPECT_EQ(crowd.legend.GetAspectRatio(), 0.0f);
    crowd.legend.Draw(surface.Graphics(), CPoint(0, 0), 1.0);
    EXPECT_EQ(surface.Graphics()->GetLastStatus(), Gdiplus::GenericError);
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
